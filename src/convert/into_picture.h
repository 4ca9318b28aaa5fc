// Puts what was converted into a picture in memory.
#pragma once

#include "convert/colour_map.h"
#include "model/picture_image.h"

namespace kelvo::convert {

// Sets the cells that `map` covers, its first at `column`, `row` (from 0). Cells that lie outside the picture are left
// out. Own colours take %01, %10, %11 in the order of their numbers; slots that no pixel shows take the background.
// The picture gets the map's background, which must be the one it has already where other cells are to look the same.
void PutInto(model::PictureImage& picture, const ColourMap& map, int column = 0, int row = 0);

// A new picture with the map's cells.
model::PictureImage PictureOf(const ColourMap& map);

}  // namespace kelvo::convert
