// How long the frames of an animation stay: turns, of which the rate tells how many there are in a second.
//
// Each frame has one turn, but for those that a list gives more: a text file beside the frames, with lines such as
//
//     12 25   # frame 12 stays for 25 turns
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "anim/frame_names.h"

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

// The list of these frames; one turn each where there is none. Throws std::runtime_error that names file and line.
FrameTimes ReadFrameTimes(const FrameNames& names);

// The text of the list; empty where there is none. Throws app::FileError for one that cannot be read.
std::string ReadListOfTimes(const FrameNames& names);

// The same list for frames that have other numbers now; what `number_now` gives none for loses its line. All else
// stays, byte by byte, also in lines that are wrong.
std::string RenumberedList(std::string_view list, const std::function<std::optional<int>(int)>& number_now);

inline constexpr int kFieldsPerSecond = 50;  // of a PAL machine's beam

// For how many fields frames are seen that have so many turns each, at `rate` (1..50) turns a second. Each ends where
// its time does, to the nearest field, so that many are as long as they should be.
std::vector<int> FieldsOf(const std::vector<int>& turns, int rate);

}  // namespace kelvo::anim
