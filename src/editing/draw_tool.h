// Free-hand drawing.
#pragma once

#include <string_view>

#include "editing/plotter.h"
#include "editing/tool.h"
#include "editing/undo_step.h"

namespace kelvo::editing {

// All of a stroke is one undo step. A press that a full cell refuses begins no stroke.
class DrawTool final : public Tool {
 public:
  DrawTool(Plotter& plotter, const Pens& pens, UndoStep& undo) : plotter_(plotter), pens_(pens), undo_(undo) {}

  std::string_view Prompt() const override { return "DRAW"; }
  PressResult Press(const PointerEvent& event) override;
  void Drag(model::PixelPoint from, const PointerEvent& to) override;

 private:
  Plotter& plotter_;
  const Pens& pens_;
  UndoStep& undo_;
};

}  // namespace kelvo::editing
