// Drawing the picture at 1:1: one multicolour pixel as two display pixels side by side.
#pragma once

#include "app/long_work.h"
#include "model/picture_image.h"
#include "model/surface.h"

namespace kelvo::model {

inline constexpr int kFullViewWidth = 320, kFullViewHeight = 200;

// Where `cell` (1..1000) lies in the full view.
Rect FullViewCellRect(int cell);

// Draws the whole picture into a surface of at least 320 x 200, from its top left corner. The progress runs from 0 to
// 24 and is told after each row of cells, so that the picture can appear row by row.
void DrawPicture(const PictureImage& picture, Surface& surface, app::Progress& progress);

// Draws one cell (1..1000) anew.
void RedrawChar(const PictureImage& picture, int cell, Surface& surface);

// Draws one pixel, x 1..160 and y 1..200, anew.
void PutPixel(const PictureImage& picture, int x, int y, Surface& surface);

// What a pointer at a place of the full view points at.
struct FullViewPointer {
  int x = 1, y = 1;      // pixel, 1..160 and 1..200
  int col = 1, row = 1;  // cell, 1..40 and 1..25
};

// For a place in display pixels that counts from 0; a place in the view's margin belongs to the nearest pixel.
FullViewPointer PointAtFullView(int display_x, int display_y);

}  // namespace kelvo::model
