// Circles from a centre and a point on the rim.
#pragma once

#include <optional>
#include <string_view>

#include "editing/plotter.h"
#include "editing/tool.h"
#include "editing/undo_step.h"

namespace kelvo::editing {

// A press only records; the next tick draws, with the left pen.
class CircleTool final : public Tool {
 public:
  CircleTool(Plotter& plotter, const Pens& pens, UndoStep& undo) : plotter_(plotter), pens_(pens), undo_(undo) {}

  std::string_view Prompt() const override { return centre_ ? "SET RADIUS POINT" : "SET CENTER POINT"; }
  PressResult Press(const PointerEvent& event) override;
  bool Tick() override;
  bool Cancel() override;
  Points Preview(model::PixelPoint pointer) const override;

 private:
  void BeginAfresh();

  Plotter& plotter_;
  const Pens& pens_;
  UndoStep& undo_;
  std::optional<model::PixelPoint> centre_;
  std::optional<int> radius_;
};

}  // namespace kelvo::editing
