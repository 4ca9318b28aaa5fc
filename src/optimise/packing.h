// "Optimize for packing": every cell's own colours are put into those of its slots that make the picture pack best.
#pragma once

#include "app/long_work.h"
#include "model/picture_image.h"

namespace kelvo::optimise {

// Neighbouring cells get the same colours in the same slots; slots that no pixel uses get what packs best, and pixels
// of the background's colour become %00. The picture looks the same; when nothing packs better it is left as it is.
// The progress runs from 0 to kPackingSteps.
inline constexpr int kPackingSteps = 4;
void OptimizeForPacking(model::PictureImage& picture, app::Progress& progress);

}  // namespace kelvo::optimise
