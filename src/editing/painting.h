// Painting as a whole: the tools, the pens, the stroke under way, and undo.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "editing/flood_fill.h"
#include "editing/painting_ports.h"
#include "editing/pens.h"
#include "editing/plotter.h"
#include "editing/tool.h"
#include "editing/tool_table.h"
#include "editing/undo_step.h"
#include "model/pixel_colour.h"

namespace kelvo::editing {

// Takes pointer events in picture pixels. While one of them is at work (a fill that lets events through, a message box
// that waits for an answer), others are passed over, so that no second action starts inside the first.
class Painting {
 public:
  Painting(model::PictureImage& picture, const PaintingPorts& ports);
  ~Painting();

  void ChooseTool(ToolId tool);
  ToolId ChosenTool() const { return tool_; }
  std::string_view Prompt() const { return Active().Prompt(); }

  // A press while another button's stroke lasts is passed over.
  void Press(const PointerEvent& event);
  // `held`: the stroke's button is still down. Where it is not, its release was lost and the stroke ends.
  void Move(model::PixelPoint at, bool held);
  void Release() { stroke_.reset(); }
  // True when a shape was drawn.
  bool Tick();

  // Takes back an unfinished shape, whose tool stays chosen. False when there is none.
  bool CancelShape();
  // The same; where there is none, returns to Draw.
  void Escape();
  void Undo();
  // An action of its own: some cells are those of `picture`, whose background is the same.
  void TakeCells(const model::PictureImage& picture, std::string_view undo_caption);
  // Another picture is in memory: nothing of the old one is left to undo or to finish.
  void Forget();

  // The points that a press at `pointer` would plot; for a shape whose second point is awaited.
  Points Preview(model::PixelPoint pointer) const { return Active().Preview(pointer); }
  std::optional<Button> StrokeButton() const;
  bool IsBusy() const { return busy_; }

  Pens& PenColours() { return pens_; }
  const Pens& PenColours() const { return pens_; }
  const UndoStep& UndoData() const { return undo_; }
  const model::DetachedCell& CopyBuffer() const { return buffer_; }

 private:
  class BusyScope;

  Tool& Active() const { return *tools_[static_cast<std::size_t>(tool_)]; }

  Pens pens_;
  UndoStep undo_;
  Plotter plotter_;
  FloodFill fill_;
  model::DetachedCell buffer_{};
  std::vector<std::unique_ptr<Tool>> tools_;  // by their ids
  ToolId tool_ = ToolId::kDraw;
  std::optional<PointerEvent> stroke_;  // where the stroke under way is
  bool busy_ = false;
};

}  // namespace kelvo::editing
