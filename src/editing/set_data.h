// Writing one pixel and the colour of its slot.
#pragma once

#include "model/bit_pair.h"
#include "model/picture_image.h"

namespace kelvo::editing {

// Gives slot `pair` of `cell` (1..1000) a colour; %00 has none of its own and stays. Throws std::out_of_range.
void SetSlotColour(model::PictureImage& picture, int cell, model::BitPair pair, model::C64Colour colour);

// Writes `pair` at `position` (1..4 from the left) of bitmap byte `byte` (1..8000). Throws std::out_of_range.
void SetBits(model::PictureImage& picture, int byte, int position, model::BitPair pair);

// The same, and `colour` into that slot of `cell` (1..1000).
void SetData(model::PictureImage& picture, int byte, int position, model::BitPair pair, int cell,
             model::C64Colour colour);

}  // namespace kelvo::editing
