// The tools that work on whole cells: mouse copy and char block fill.
#pragma once

#include <string_view>

#include "editing/cell_copy.h"
#include "editing/tool.h"
#include "editing/undo_step.h"
#include "model/picture_views.h"

namespace kelvo::editing {

// Does the same with every cell that a stroke crosses; all of a stroke is one undo step.
class CellTool : public Tool {
 public:
  CellTool(model::PictureImage& picture, model::PictureViews& views, UndoStep& undo)
      : picture_(picture), views_(views), undo_(undo) {}

  PressResult Press(const PointerEvent& event) override;
  void Drag(model::PixelPoint from, const PointerEvent& to) override;

 protected:
  // The undo caption of a stroke; empty when it changes nothing.
  virtual std::string_view UndoCaption(Button button) const = 0;
  virtual void Apply(const model::PixelPlace& cell, Button button) = 0;

  model::PictureImage& picture_;

 private:
  void ApplyAt(const model::PixelPlace& place, Button button);

  model::PictureViews& views_;
  UndoStep& undo_;
};

// The right button takes a cell into the buffer, the left one puts the buffer into a cell.
class MouseCopyTool final : public CellTool {
 public:
  MouseCopyTool(model::PictureImage& picture, model::PictureViews& views, UndoStep& undo, model::DetachedCell& buffer)
      : CellTool(picture, views, undo), buffer_(buffer) {}

  std::string_view Prompt() const override { return "CHAR MOUSE COPY"; }

 private:
  std::string_view UndoCaption(Button button) const override { return button == Button::kLeft ? "Undo copy" : ""; }
  void Apply(const model::PixelPlace& cell, Button button) override;

  model::DetachedCell& buffer_;
};

// Either button makes a cell a block of the left pen's colour.
class BlockFillTool final : public CellTool {
 public:
  BlockFillTool(model::PictureImage& picture, model::PictureViews& views, UndoStep& undo, const Pens& pens)
      : CellTool(picture, views, undo), pens_(pens) {}

  std::string_view Prompt() const override { return "CHAR BLOCK FILL"; }

 private:
  std::string_view UndoCaption(Button) const override { return "Undo block fill"; }
  void Apply(const model::PixelPlace& cell, Button button) override;

  const Pens& pens_;
};

}  // namespace kelvo::editing
