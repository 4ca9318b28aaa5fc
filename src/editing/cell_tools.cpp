#include "editing/cell_tools.h"

namespace kelvo::editing {

PressResult CellTool::Press(const PointerEvent& event) {
  const std::string_view caption = UndoCaption(event.button);
  if (!caption.empty()) undo_.SaveUndoData(caption);
  last_cell_ = 0;
  ApplyAt(event.at, event.button);
  return PressResult::kStroke;
}

void CellTool::Drag(model::PixelPoint from, const PointerEvent& to) {
  for (const model::PixelPoint& point : PathBetween(from, to.at)) ApplyAt(point, to.button);
}

void CellTool::ApplyAt(model::PixelPoint at, Button button) {
  if (!model::IsInPicture(at.x, at.y)) return;
  const model::PixelPlace place = model::LookUpPixel(at.x, at.y);
  if (place.cell == last_cell_) return;
  last_cell_ = place.cell;
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
