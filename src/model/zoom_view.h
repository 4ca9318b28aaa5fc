// Drawing the zoomed area: each picture pixel as a box, with the grid over it and a border around.
#pragma once

#include <array>

#include "model/picture_image.h"
#include "model/surface.h"
#include "model/zoom_area.h"

namespace kelvo::model {

// The surface that an area takes at first.
inline constexpr int kZoomSurfaceWidth = ZoomArea::kWidth + 2 * ZoomArea::kBorder;
inline constexpr int kZoomSurfaceHeight = ZoomArea::kHeight + 2 * ZoomArea::kBorder;

// The border's sides: above and below over the whole width, left and right between those.
std::array<Rect, 4> ZoomBorderSides(const Surface& surface);

// Cells are parted by lines in the grid colour along their top and left edges; at 8:1 their pixels are parted by
// fainter ones. All procedures draw into a surface of the area's SurfaceWidth() x SurfaceHeight().
struct ZoomGrid {
  C64Colour colour;
};

// Everything but the border.
void DrawCapturePic(const PictureImage& picture, const ZoomArea& area, ZoomGrid grid, Surface& surface);

// One cell (1..1000); nothing when the area does not show it.
void RedrawZoomChar(const PictureImage& picture, int cell, const ZoomArea& area, ZoomGrid grid, Surface& surface);

// One pixel, x 1..160 and y 1..200; nothing when the area does not show it.
void PutZoomPixel(const PictureImage& picture, int x, int y, const ZoomArea& area, ZoomGrid grid, Surface& surface);

// The border around the zoomed area, in one colour.
void DrawZoomBorder(C64Colour colour, Surface& surface);

}  // namespace kelvo::model
