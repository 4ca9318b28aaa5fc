#include "model/onion_skin.h"

#include <algorithm>

#include "model/cell_palette.h"
#include "model/mix_quarter.h"
#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

void MixInto(const Rect& box, std::uint32_t colour, Surface& surface) {
  for (int y = box.y; y < box.y + box.height; ++y) {
    std::uint32_t* row = surface.Row(y) + box.x;
    std::transform(row, row + box.width, row, [&](std::uint32_t under) { return MixQuarter(under, colour); });
  }
}

}  // namespace

void MixOnionSkin(const PictureImage& other, const ZoomArea& area, Surface& surface) {
  for (int cell = 1; cell <= PictureImage::kCells; ++cell) MixOnionSkinCell(other, cell, area, surface);
}

void MixOnionSkinCell(const PictureImage& other, int cell, const ZoomArea& area, Surface& surface) {
  if (!area.ShowsCell(cell)) return;
  const CellPalette palette = PaletteOfCell(other, cell);
  const Rect at = area.CellRect(cell);
  const std::uint8_t* bytes = &other.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + 1)];
  for (int line = 0; line < 8; ++line) {
    for (int position = 1; position <= 4; ++position) {
      const Rect box{at.x + (position - 1) * area.BoxWidth(), at.y + line * area.BoxHeight(), area.BoxWidth(),
                     area.BoxHeight()};
      MixInto(box, PixelIn(palette, bytes[line], position), surface);
    }
  }
}

void MixOnionSkinPixel(const PictureImage& other, int x, int y, const ZoomArea& area, Surface& surface) {
  if (!area.ShowsPixel(x, y)) return;
  const PixelPlace place = LookUpPixel(x, y);
  const std::uint8_t byte = other.Bitmap[static_cast<std::size_t>(place.byte)];
  MixInto(area.PixelRect(x, y), PixelIn(PaletteOfCell(other, place.cell), byte, place.position), surface);
}

}  // namespace kelvo::model
