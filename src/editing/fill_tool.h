// Filling a region.
#pragma once

#include <string_view>

#include "editing/flood_fill.h"
#include "editing/painting_ports.h"
#include "editing/tool.h"
#include "editing/undo_step.h"

namespace kelvo::editing {

class FillTool final : public Tool {
 public:
  FillTool(FloodFill& fill, const Pens& pens, UndoStep& undo, const PaintingPorts& ports)
      : fill_(fill), pens_(pens), undo_(undo), ports_(ports) {}

  std::string_view Prompt() const override { return "FILL"; }
  PressResult Press(const PointerEvent& event) override;

 private:
  FloodFill& fill_;
  const Pens& pens_;
  UndoStep& undo_;
  PaintingPorts ports_;
};

}  // namespace kelvo::editing
