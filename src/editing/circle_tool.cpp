#include "editing/circle_tool.h"

#include "editing/preferences.h"
#include "editing/shapes.h"

namespace kelvo::editing {

void CircleTool::BeginAfresh() {
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

bool CircleTool::Cancel() {
  if (!centre_) return false;
  undo_.Withdraw();
  BeginAfresh();
  return true;
}

bool CircleTool::Tick() {
  if (!radius_) return false;
  const Points points = Outline(*radius_);
  BeginAfresh();
  plotter_.Plot(points, pens_.left);
  return true;
}

Points CircleTool::Preview(model::PixelPoint pointer) const {
  return centre_ ? Outline(radius_.value_or(CircleRadius(*centre_, pointer))) : Points();
}

Points CircleTool::Outline(int radius) const {
  return DrawCircle(*centre_, radius,
                    app::IsOn(settings_, kCloseCircles) ? CircleOutline::kClosed : CircleOutline::kSampled);
}

}  // namespace kelvo::editing
