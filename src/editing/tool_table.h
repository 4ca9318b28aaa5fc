// The painting tools, a row each: a new one is a class of its own and a row here.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "editing/flood_fill.h"
#include "editing/painting_ports.h"
#include "editing/pens.h"
#include "editing/plotter.h"
#include "editing/tool.h"
#include "editing/undo_step.h"
#include "model/pixel_colour.h"

namespace kelvo::editing {

enum class ToolId { kDraw, kFill, kLine, kContinuousLine, kCircle, kMouseCopy, kBlockFill };

// What tools are made of; all of it but `ports` outlives them.
struct ToolParts {
  model::PictureImage& picture;
  const PaintingPorts& ports;
  const Pens& pens;
  UndoStep& undo;
  Plotter& plotter;
  FloodFill& fill;
  model::DetachedCell& copy_buffer;
};

struct ToolRow {
  ToolId id;
  std::string_view name;  // of its icon and of its action
  std::string_view caption;
  char key;  // chooses it
  std::unique_ptr<Tool> (*make)(const ToolParts& parts);
};

// In the order of their ids, which is that of the toolbar.
std::span<const ToolRow> ToolTable();

}  // namespace kelvo::editing
