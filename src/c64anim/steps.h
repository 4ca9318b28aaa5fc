// In which order the player makes changes, and when.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "c64anim/animation.h"

namespace kelvo::c64anim {

// For how long the frame before is shown, and which changes are made then.
struct Step {
  int fields = 1;  // 1..kMostFields
  std::size_t change = 0;
};

// The steps of frames that are shown for `fields` each. Change 0 draws the first frame, change n leads from frame n to
// the next, counted from 1; with the number of frames it leads from the last to the first, and kRound alone has it.
// The change behind all these, which is the number of frames and 1 more, is none: longer times are waited in several
// steps.
std::vector<Step> StepsOf(std::span<const int> fields, Playing playing);

// The step that the player goes on with behind the last; 0 where it stays.
std::size_t NextRound(std::span<const Step> steps, Playing playing);

}  // namespace kelvo::c64anim
