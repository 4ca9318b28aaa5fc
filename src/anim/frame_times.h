// How long the frames of an animation stay: turns, of which the rate tells how many there are in a second.
//
// Each frame has one turn, but for those that a list gives more: a text file beside the frames, with lines such as
//
//     12 25   # frame 12 stays for 25 turns
#pragma once

#include <map>
#include <string_view>
#include <vector>

namespace kelvo::anim {

inline constexpr int kMostTurns = 600;

class FrameTimes {
 public:
  FrameTimes() = default;
  // The list's text. Throws std::runtime_error that tells the line which is none, or names a frame again.
  explicit FrameTimes(std::string_view list);

  // 1..kMostTurns, for a frame of any number.
  int TurnsOf(int number) const;

 private:
  std::map<int, int> turns_;
};

inline constexpr int kFieldsPerSecond = 50;  // of a PAL machine's beam

// For how many fields frames are seen that have so many turns each, at `rate` (1..50) turns a second. Each ends where
// its time does, to the nearest field, so that many are as long as they should be.
std::vector<int> FieldsOf(const std::vector<int>& turns, int rate);

}  // namespace kelvo::anim
