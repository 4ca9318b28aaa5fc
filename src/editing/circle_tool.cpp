#include "editing/circle_tool.h"

#include "editing/circle.h"

namespace kelvo::editing {

void CircleTool::Choose() {
  centre_.reset();
  radius_.reset();
}

PressResult CircleTool::Press(const PointerEvent& event) {
  if (!centre_) {
    undo_.SaveUndoData("Undo circle");
    centre_ = event.at;
  } else if (!radius_) {
    radius_ = CircleRadius(*centre_, event.at);
  }
  return PressResult::kHandled;
}

void CircleTool::Tick() {
  if (!radius_) return;
  const Points points = DrawCircle(*centre_, *radius_);
  Choose();
  plotter_.Plot(points, pens_.left);
}

Points CircleTool::Preview(model::PixelPoint pointer) const {
  return centre_ ? DrawCircle(*centre_, radius_.value_or(CircleRadius(*centre_, pointer))) : Points();
}

}  // namespace kelvo::editing
