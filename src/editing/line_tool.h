// Lines between presses.
#pragma once

#include <optional>
#include <string_view>

#include "editing/plotter.h"
#include "editing/tool.h"
#include "editing/undo_step.h"

namespace kelvo::editing {

enum class LineKind { kSingle, kContinuous };

// A press only records a point; the next tick draws, with the left pen, and advances the prompt. A continuous line goes
// on from where it ended, and all of it is one undo step.
class LineTool final : public Tool {
 public:
  LineTool(LineKind kind, Plotter& plotter, const Pens& pens, UndoStep& undo)
      : kind_(kind), plotter_(plotter), pens_(pens), undo_(undo) {}

  std::string_view Prompt() const override { return prompt_; }
  PressResult Press(const PointerEvent& event) override;
  bool Tick() override;
  bool Cancel() override;
  Points Preview(model::PixelPoint pointer) const override;

 private:
  void BeginAfresh();

  LineKind kind_;
  Plotter& plotter_;
  const Pens& pens_;
  UndoStep& undo_;
  std::string_view prompt_ = "SET STARTING POINT";
  std::optional<model::PixelPoint> start_, end_;
  bool has_segments_ = false;  // of the continuous line under way
};

}  // namespace kelvo::editing
