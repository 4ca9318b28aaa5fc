// Animations of the three kinds that a C64 has to cope with.
#pragma once

#include <vector>

#include "model/picture_image.h"

namespace kelvo::samples {

using Frames = std::vector<model::PictureImage>;

// 16 frames: somebody walks by a lake, a stride in eight of them; about 60 cells change each time.
Frames DrawWalk();
// 8 frames: a planet comes through a landscape; nearly all cells change each time.
Frames DrawDissolve();
// 200 frames: it snows on a landscape; about 30 cells change each time, and the last leads to the first.
Frames DrawSnow();

}  // namespace kelvo::samples
