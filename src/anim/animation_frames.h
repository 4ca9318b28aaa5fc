// The frames of an animation, for what is made of all of them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "anim/frame_names.h"
#include "model/picture_image.h"

namespace kelvo::anim {

struct AnimationFrame {
  int number;  // kFirstFrame..kLastFrame
  std::filesystem::path path;
  int turns;  // for how long it stays; the rate tells how many there are in a second
};

struct AnimationFrames {
  std::vector<AnimationFrame> frames{};  // one at least, in their order
  std::vector<int> missing{};            // numbers between the first and the last that have no file
  std::filesystem::path folder;          // where what is made of them goes
  std::string name;                      // how it is called, without an ending
};

// As the folder is now. Throws std::runtime_error that says which file is wrong: no frames, one that has not the size
// of a picture, a list of times (NAME-times.txt) with a wrong line.
AnimationFrames FindFrames(const AnimProperties& properties);

// How long each frame is seen, in fields of a PAL machine's beam, at `rate` (kSlowestRate..kFastestRate) turns a
// second.
std::vector<int> FieldsOf(const AnimationFrames& animation, int rate);

// "Frames 3, 5 and 7": what numbers are called in a text; of many the first few.
std::string FramesNamed(const std::vector<int>& numbers);

}  // namespace kelvo::anim
