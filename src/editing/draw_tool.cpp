#include "editing/draw_tool.h"

namespace kelvo::editing {

PressResult DrawTool::Press(const PointerEvent& event) {
  undo_.SaveUndoData("Undo draw");
  return plotter_.Plot({event.at}, pens_.Of(event.button)) ? PressResult::kStroke : PressResult::kHandled;
}

void DrawTool::Drag(model::PixelPoint from, const PointerEvent& to) {
  plotter_.Plot(PathBetween(from, to.at), pens_.Of(to.button));
}

}  // namespace kelvo::editing
