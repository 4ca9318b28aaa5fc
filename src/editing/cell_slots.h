// The colour slots of a cell, and which of them a new colour may take.
//
// A cell shows the picture's background (%00) and three colours of its own: %01 and %10 in the nibbles of its screen
// byte, %11 in its colour byte. Nothing here draws or asks the user: a full cell is an empty optional, and the caller
// decides what that means. `base` is the base index of a cell: its bytes are Bitmap[base + 1] .. Bitmap[base + 8].
#pragma once

#include <optional>

#include "model/bit_pair.h"
#include "model/picture_image.h"

namespace kelvo::editing {

// True when any of the cell's 32 pixels shows `pair`.
bool IsColorUsed(const model::PictureImage& picture, int base, model::BitPair pair);

// The own slot that the fewest pixels show; of equals %11 comes before %10 before %01. The pixels counted are those of
// the bytes base + 0 .. base + 7, one byte early on purpose: the last line of the cell before instead of the cell's own
// bottom line. Fills depend on it.
model::BitPair GetLeastUsedCol(const model::PictureImage& before, int base);

// The slot that `colour` takes in `cell` (1..1000), judged on `before`, the picture as it was when a fill began: a slot
// that shows the colour already (own slots before the background), else one that no pixel shows, else one that shows
// the background colour. Empty when the cell is full.
std::optional<model::BitPair> GetColorBinForChar(const model::PictureImage& before, model::C64Colour colour, int cell,
                                                 int base);

}  // namespace kelvo::editing
