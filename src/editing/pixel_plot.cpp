#include "editing/pixel_plot.h"

#include <optional>

#include "editing/cell_slots.h"
#include "editing/set_data.h"
#include "model/pixel_colour.h"

namespace kelvo::editing {
namespace {

using model::BitPair;
using model::PictureImage;

std::optional<BitPair> SlotShowing(const PictureImage& picture, int cell, model::C64Colour pen) {
  if (pen == picture.BackgroundColour) return BitPair::k00;
  for (const BitPair slot : model::kOwnSlots) {
    if (model::ColourInCell(picture, cell, slot) == pen) return slot;
  }
  return std::nullopt;
}

std::optional<BitPair> FreeSlot(const PictureImage& picture, const model::PixelPlace& place) {
  for (const BitPair slot : model::kOwnSlots) {
    if (!IsColorUsed(picture, place.base, slot) ||
        model::ColourInCell(picture, place.cell, slot) == picture.BackgroundColour) {
      return slot;
    }
  }
  return std::nullopt;
}

}  // namespace

PlotResult PlotPixel(PictureImage& picture, int x, int y, model::C64Colour pen, FullCell full_cell) {
  if (!model::IsInPicture(x, y)) return PlotResult::kOutside;
  const model::PixelPlace place = model::LookUpPixel(x, y);
  if (const auto slot = SlotShowing(picture, place.cell, pen)) {
    // The pixel alone is written: what a file keeps in the high nibble of the cell's colour byte stays.
    SetBits(picture, place.byte, place.position, *slot);
    return PlotResult::kPlotted;
  }
  if (const auto slot = FreeSlot(picture, place)) {
    SetData(picture, place.byte, place.position, *slot, place.cell, pen);
    return PlotResult::kPlotted;
  }
  if (full_cell == FullCell::kRefuse) return PlotResult::kCellFull;
  SetSlotColour(picture, place.cell, model::GetPixelData(picture, x, y).pair, pen);
  return PlotResult::kRecoloured;
}

}  // namespace kelvo::editing
