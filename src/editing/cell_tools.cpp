#include "editing/cell_tools.h"

#include <algorithm>
#include <utility>

namespace kelvo::editing {
namespace {

constexpr std::size_t kFirstLine = 3;  // of the buffer

}  // namespace

void MouseCopy(const model::PictureImage& picture, const model::PixelPlace& place, model::DetachedCell& buffer) {
  const auto cell = static_cast<std::size_t>(place.cell);
  buffer[1] = picture.ColourMemory.at(cell);
  buffer[2] = picture.ScreenMemory.at(cell);
  std::copy_n(picture.Bitmap.begin() + place.base + 1, 8, buffer.begin() + kFirstLine);
}

void MouseCopySet(model::PictureImage& picture, const model::PixelPlace& place, const model::DetachedCell& buffer) {
  const auto cell = static_cast<std::size_t>(place.cell);
  picture.ColourMemory.at(cell) = buffer[1];
  picture.ScreenMemory.at(cell) = buffer[2];
  std::copy_n(buffer.begin() + kFirstLine, 8, picture.Bitmap.begin() + place.base + 1);
}

void FillChar(model::PictureImage& picture, const model::PixelPlace& place, model::C64Colour colour) {
  model::DetachedCell block{};
  std::fill(block.begin() + kFirstLine, block.end(), std::uint8_t{0xFF});
  block[1] = colour.Byte();
  MouseCopySet(picture, place, block);
}

PressResult CellTool::Press(const PointerEvent& event) {
  if (const auto caption = UndoCaption(event.button)) undo_.SaveUndoData(*caption);
  ApplyAt(model::LookUpPixel(event.at.x, event.at.y), event.button);
  return PressResult::kStroke;
}

void CellTool::Drag(model::PixelPoint from, const PointerEvent& to) {
  int last_cell = 0;
  for (const model::PixelPoint& point : PathBetween(from, to.at)) {
    if (!model::IsInPicture(point.x, point.y)) continue;
    const model::PixelPlace place = model::LookUpPixel(point.x, point.y);
    if (std::exchange(last_cell, place.cell) != place.cell) ApplyAt(place, to.button);
  }
}

void CellTool::ApplyAt(const model::PixelPlace& place, Button button) {
  Apply(place, button);
  views_.CellChanged(place.cell);
}

void MouseCopyTool::Apply(const model::PixelPlace& cell, Button button) {
  if (button == Button::kRight) return MouseCopy(picture_, cell, buffer_);
  MouseCopySet(picture_, cell, buffer_);
}

void BlockFillTool::Apply(const model::PixelPlace& cell, Button) {
  FillChar(picture_, cell, pens_.left);
}

}  // namespace kelvo::editing
