#include "editing/cell_tools.h"

#include <utility>

namespace kelvo::editing {

PressResult CellTool::Press(const PointerEvent& event) {
  const std::string_view caption = UndoCaption(event.button);
  if (!caption.empty()) undo_.SaveUndoData(caption);
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
