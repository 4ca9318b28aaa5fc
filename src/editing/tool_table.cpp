#include "editing/tool_table.h"

#include <array>

#include "editing/cell_tools.h"
#include "editing/circle_tool.h"
#include "editing/draw_tool.h"
#include "editing/fill_tool.h"
#include "editing/line_tool.h"

namespace kelvo::editing {
namespace {

using Made = std::unique_ptr<Tool>;

Made MakeDraw(const ToolParts& p) {
  return std::make_unique<DrawTool>(p.plotter, p.pens, p.undo);
}
Made MakeFill(const ToolParts& p) {
  return std::make_unique<FillTool>(p.fill, p.pens, p.undo, p.ports);
}
template <LineKind kind>
Made MakeLine(const ToolParts& p) {
  return std::make_unique<LineTool>(kind, p.plotter, p.pens, p.undo);
}
Made MakeCircle(const ToolParts& p) {
  return std::make_unique<CircleTool>(p.plotter, p.pens, p.undo, p.ports.settings);
}
Made MakeMouseCopy(const ToolParts& p) {
  return std::make_unique<MouseCopyTool>(p.picture, p.ports.views, p.undo, p.copy_buffer);
}
Made MakeBlockFill(const ToolParts& p) {
  return std::make_unique<BlockFillTool>(p.picture, p.ports.views, p.undo, p.pens);
}

constexpr std::array kTools{
    ToolRow{ToolId::kDraw, "draw", "Draw", 'D', MakeDraw},
    ToolRow{ToolId::kFill, "fill", "Fill", 'F', MakeFill},
    ToolRow{ToolId::kLine, "line", "Line", 'L', MakeLine<LineKind::kSingle>},
    ToolRow{ToolId::kContinuousLine, "continuous_line", "Continous line", 'K', MakeLine<LineKind::kContinuous>},
    ToolRow{ToolId::kCircle, "circle", "Circle", 'C', MakeCircle},
    ToolRow{ToolId::kMouseCopy, "mouse_copy", "Mouse copy", 'M', MakeMouseCopy},
    ToolRow{ToolId::kBlockFill, "block_fill", "Char block fill", 'B', MakeBlockFill},
};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kTools.size(); ++i) {
    if (static_cast<std::size_t>(kTools.at(i).id) != i) return false;
  }
  return true;
}
static_assert(IsInOrder());

}  // namespace

std::span<const ToolRow> ToolTable() {
  return kTools;
}

}  // namespace kelvo::editing
