#include "model/zoom_view.h"

#include <algorithm>

#include "model/cell_palette.h"
#include "model/full_view.h"
#include "model/mix_colours.h"
#include "model/palette.h"
#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

// A pixel's box: its top row, and the row that stands in all the others.
struct BoxColours {
  std::uint32_t fill;       // inside
  std::uint32_t top, left;  // along the edges
};

BoxColours ColoursOfBox(std::uint32_t fill, std::uint32_t grid, bool pixel_grid, bool on_cell_top, bool on_cell_left) {
  const std::uint32_t edge = pixel_grid ? MixQuarter(fill, grid) : fill;
  return {fill, on_cell_top ? grid : edge, on_cell_left ? grid : edge};
}

// Draws rows `line` of a cell's boxes; `at` is the place of the cell's left edge in the boxes' top row.
void DrawBoxes(std::uint8_t byte, const CellPalette& palette, const ZoomArea& area, std::uint32_t grid, int line,
               std::uint32_t* at, int stride) {
  const int box_width = area.BoxWidth(), width = 4 * box_width;
  std::uint32_t* top = at;
  std::uint32_t* inside = at + stride;
  for (int position = 1; position <= 4; ++position, top += box_width, inside += box_width) {
    const BoxColours box = ColoursOfBox(PixelIn(palette, byte, position), grid, area.Is8X(), line == 0, position == 1);
    std::fill_n(inside, box_width, box.fill);
    std::fill_n(top, box_width, box.top);
    inside[0] = box.left;
    if (position == 1) top[0] = box.left;
  }
  for (int copy = 2; copy < area.BoxHeight(); ++copy) {
    std::copy_n(at + stride, width, at + static_cast<std::ptrdiff_t>(copy) * stride);
  }
}

}  // namespace

void RedrawZoomChar(const PictureImage& picture, int cell, const ZoomArea& area, ZoomGrid grid, Surface& surface) {
  if (!area.ShowsCell(cell)) return;
  const CellPalette palette = PaletteOfCell(picture, cell);
  const std::uint32_t grid_colour = SurfaceColour(grid.colour);
  const Rect at = area.CellRect(cell);
  const std::uint8_t* bytes = &picture.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + 1)];
  for (int line = 0; line < 8; ++line) {
    DrawBoxes(bytes[line], palette, area, grid_colour, line, surface.Row(at.y + line * area.BoxHeight()) + at.x,
              surface.Width());
  }
}

void DrawCapturePic(const PictureImage& picture, const ZoomArea& area, ZoomGrid grid, Surface& surface) {
  const int first = area.ZoomOriginY() / 8 * PictureImage::kCellsWide + area.ZoomOriginX() / 8 + 1;
  for (int row = 0; row < area.CellsHigh(); ++row) {
    for (int column = 0; column < area.CellsWide(); ++column) {
      RedrawZoomChar(picture, first + row * PictureImage::kCellsWide + column, area, grid, surface);
    }
  }
}

void PutZoomPixel(const PictureImage& picture, int x, int y, const ZoomArea& area, ZoomGrid grid, Surface& surface) {
  if (!area.ShowsPixel(x, y)) return;
  const PixelPlace place = LookUpPixel(x, y);
  const std::uint8_t byte = picture.Bitmap[static_cast<std::size_t>(place.byte)];
  const BoxColours box = ColoursOfBox(PixelIn(PaletteOfCell(picture, place.cell), byte, place.position),
                                      SurfaceColour(grid.colour), area.Is8X(), place.line == 1, place.position == 1);
  const Rect at = area.PixelRect(x, y);
  surface.Fill(at, box.fill);
  surface.Fill({at.x, at.y, at.width, 1}, box.top);
  surface.Fill({at.x, at.y + (place.position == 1 ? 0 : 1), 1, at.height - (place.position == 1 ? 0 : 1)}, box.left);
}

std::array<Rect, 4> ZoomBorderSides(const Surface& surface) {
  constexpr int kBorder = ZoomArea::kBorder;
  const int width = surface.Width(), height = surface.Height(), between = height - 2 * kBorder;
  return {{{0, 0, width, kBorder},
           {0, height - kBorder, width, kBorder},
           {0, kBorder, kBorder, between},
           {width - kBorder, kBorder, kBorder, between}}};
}

void DrawZoomBorder(C64Colour colour, Surface& surface) {
  for (const Rect& side : ZoomBorderSides(surface)) surface.Fill(side, SurfaceColour(colour));
}

}  // namespace kelvo::model
