#include "model/onion_skin.h"

#include <algorithm>

#include "model/cell_palette.h"
#include "model/mix_colours.h"
#include "model/pixel_place.h"

namespace kelvo::model {
namespace {

void MixInto(const Rect& box, std::uint32_t colour, int quarters, Surface& surface) {
  for (int y = box.y; y < box.y + box.height; ++y) {
    std::uint32_t* row = surface.Row(y) + box.x;
    std::transform(row, row + box.width, row,
                   [&](std::uint32_t under) { return MixQuarters(under, colour, quarters); });
  }
}

// What a cell of all the pictures looks like, of which there is at least one.
CellPixels PixelsOfSkin(const OnionSkin& skin, int cell) {
  CellPixels pixels = PixelsOfCell(skin.pictures.front(), cell);
  if (skin.pictures.size() == 1) return pixels;
  const CellPixels others = PixelsOfCell(skin.pictures.back(), cell);
  std::transform(pixels.begin(), pixels.end(), others.begin(), pixels.begin(), MixHalf);
  return pixels;
}

}  // namespace

void MixOnionSkin(const OnionSkin& skin, const ZoomArea& area, Surface& surface) {
  for (int cell = 1; cell <= PictureImage::kCells; ++cell) MixOnionSkinCell(skin, cell, area, surface);
}

void MixOnionSkinCell(const OnionSkin& skin, int cell, const ZoomArea& area, Surface& surface) {
  if (skin.pictures.empty() || !area.ShowsCell(cell)) return;
  const Rect at = area.CellRect(cell);
  Rect box{at.x, at.y, area.BoxWidth(), area.BoxHeight()};
  for (const std::uint32_t colour : PixelsOfSkin(skin, cell)) {
    MixInto(box, colour, skin.quarters, surface);
    box.x += box.width;
    if (box.x == at.x + at.width) box = {at.x, box.y + box.height, box.width, box.height};
  }
}

void MixOnionSkinPixel(const OnionSkin& skin, int x, int y, const ZoomArea& area, Surface& surface) {
  if (skin.pictures.empty() || !area.ShowsPixel(x, y)) return;
  const PixelPlace place = LookUpPixel(x, y);
  const CellPixels pixels = PixelsOfSkin(skin, place.cell);
  MixInto(area.PixelRect(x, y), pixels[PixelInCell(place.line, place.position)], skin.quarters, surface);
}

}  // namespace kelvo::model
