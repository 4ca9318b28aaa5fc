#include "editing/line_tool.h"

namespace kelvo::editing {

void LineTool::Choose() {
  start_.reset();
  end_.reset();
  prompt_ = "SET STARTING POINT";
}

PressResult LineTool::Press(const PointerEvent& event) {
  if (!start_) {
    undo_.SaveUndoData("Undo line");
    start_ = event.at;
  } else if (!end_) {
    end_ = event.at;
  }
  return PressResult::kHandled;
}

void LineTool::Tick() {
  if (!end_) {
    if (start_) prompt_ = "SET ENDING POINT";
    return;
  }
  const model::PixelPoint from = *start_, to = *end_;
  if (kind_ == LineKind::kSingle) {
    Choose();
  } else {
    start_ = to;
    end_.reset();
  }
  plotter_.Plot(DrawLine(from, to), pens_.left);
}

Points LineTool::Preview(model::PixelPoint pointer) const {
  return start_ ? DrawLine(*start_, end_.value_or(pointer)) : Points();
}

}  // namespace kelvo::editing
