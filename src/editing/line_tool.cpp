#include "editing/line_tool.h"

namespace kelvo::editing {

void LineTool::BeginAfresh() {
  start_.reset();
  end_.reset();
  has_segments_ = false;
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

bool LineTool::Cancel() {
  if (!start_) return false;
  if (!has_segments_) undo_.Withdraw();
  BeginAfresh();
  return true;
}

bool LineTool::Tick() {
  if (!end_) {
    if (start_) prompt_ = "SET ENDING POINT";
    return false;
  }
  const model::PixelPoint from = *start_, to = *end_;
  if (kind_ == LineKind::kSingle) {
    BeginAfresh();
  } else {
    start_ = to;
    end_.reset();
    has_segments_ = true;
  }
  plotter_.Plot(DrawLine(from, to), pens_.left);
  return true;
}

Points LineTool::Preview(model::PixelPoint pointer) const {
  return start_ ? DrawLine(*start_, end_.value_or(pointer)) : Points();
}

}  // namespace kelvo::editing
