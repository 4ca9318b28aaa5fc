// Whole cells: taking one into the copy buffer, putting it elsewhere, making one a solid block.
#pragma once

#include "model/pixel_colour.h"

namespace kelvo::editing {

// Takes the cell at `place` into the buffer: colour byte, screen byte, eight bitmap bytes, from index 1.
void MouseCopy(const model::PictureImage& picture, const model::PixelPlace& place, model::DetachedCell& buffer);

// Puts the buffer into the cell at `place`.
void MouseCopySet(model::PictureImage& picture, const model::PixelPlace& place, const model::DetachedCell& buffer);

// Makes the cell at `place` a block of %11 in `colour`; its other two colours become 0.
void FillChar(model::PictureImage& picture, const model::PixelPlace& place, model::C64Colour colour);

}  // namespace kelvo::editing
