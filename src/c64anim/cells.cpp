#include "c64anim/cells.h"

#include <algorithm>

#include "optimise/slot_order.h"

namespace kelvo::c64anim {
namespace {

// The cell with the colours of `order`; slots that no pixel uses keep those of `before`.
CellBytes WithColoursOf(const optimise::SlotOrder& order, const CellBytes& before) {
  const auto& [slot01, slot10, slot11] = order.slots;
  return {.lines = order.lines,
          .screen = static_cast<std::uint8_t>(slot01.value_or(before.screen >> 4) << 4 |
                                              slot10.value_or(before.screen & 0x0F)),
          .colour = slot11.value_or(before.colour)};
}

int ChangedBytes(const CellBytes& before, const CellBytes& after) {
  int changed = (before.screen != after.screen ? 1 : 0) + (before.colour != after.colour ? 1 : 0);
  for (std::size_t line = 0; line < before.lines.size(); ++line) changed += before.lines[line] != after.lines[line];
  return changed;
}

}  // namespace

FrameBytes FrameBytesOf(const model::PictureImage& picture) {
  FrameBytes frame{.background = picture.BackgroundColour.Byte()};
  for (std::size_t i = 0; i < frame.cells.size(); ++i) {
    CellBytes& cell = frame.cells[i];
    std::copy_n(picture.Bitmap.begin() + 1 + static_cast<std::ptrdiff_t>(i * 8), 8, cell.lines.begin());
    cell.screen = picture.ScreenMemory[i + 1];
    cell.colour = picture.ColourMemory[i + 1] & 0x0F;
  }
  return frame;
}

FrameBytes SteadyCells::Next(const model::PictureImage& frame) {
  const FrameBytes drawn = FrameBytesOf(frame);
  const bool is_background_same = drawn.background == drawn_.background;
  for (std::size_t cell = 0; cell < drawn.cells.size(); ++cell) {
    if (is_background_same && drawn.cells[cell] == drawn_.cells[cell]) continue;
    steady_.cells[cell] = BytesOf(frame, cell, steady_.cells[cell]);
  }
  steady_.background = drawn.background;
  drawn_ = drawn;
  return steady_;
}

CellBytes SteadyCells::BytesOf(const model::PictureImage& frame, std::size_t cell, const CellBytes& before) {
  const auto orders = optimise::SlotOrdersOf(frame, static_cast<int>(cell) + 1);
  const auto [known, is_new] =
      known_[cell].try_emplace({frame.BackgroundColour.Byte(), WithColoursOf(orders.front(), {})});
  if (!is_new) return known->second;
  const auto changes = [&](const optimise::SlotOrder& order) {
    return ChangedBytes(before, WithColoursOf(order, before));
  };
  known->second = WithColoursOf(
      *std::min_element(orders.begin(), orders.end(),
                        [&](const auto& one, const auto& other) { return changes(one) < changes(other); }),
      before);
  return known->second;
}

}  // namespace kelvo::c64anim
