// The tools that work on whole cells, mouse copy and char block fill, and what they do with one.
#pragma once

#include <optional>
#include <string_view>

#include "editing/tool.h"
#include "editing/undo_step.h"
#include "model/picture_views.h"
#include "model/pixel_colour.h"

namespace kelvo::editing {

// Takes the cell at `place` into the buffer: colour byte, screen byte, eight bitmap bytes, from index 1.
void MouseCopy(const model::PictureImage& picture, const model::PixelPlace& place, model::DetachedCell& buffer);

// Puts the buffer into the cell at `place`.
void MouseCopySet(model::PictureImage& picture, const model::PixelPlace& place, const model::DetachedCell& buffer);

// Makes the cell at `place` a block of %11 in `colour`; its other two colours become 0.
void FillChar(model::PictureImage& picture, const model::PixelPlace& place, model::C64Colour colour);

// Does the same with every cell that a stroke crosses; all of a stroke is one undo step.
class CellTool : public Tool {
 public:
  CellTool(model::PictureImage& picture, model::PictureViews& views, UndoStep& undo)
      : picture_(picture), views_(views), undo_(undo) {}

  PressResult Press(const PointerEvent& event) override;
  void Drag(model::PixelPoint from, const PointerEvent& to) override;

 protected:
  // The undo caption of a stroke; none for one that changes nothing.
  virtual std::optional<std::string_view> UndoCaption(Button button) const = 0;
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
  std::optional<std::string_view> UndoCaption(Button button) const override {
    return button == Button::kLeft ? std::optional<std::string_view>("Undo copy") : std::nullopt;
  }
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
  std::optional<std::string_view> UndoCaption(Button) const override { return "Undo block fill"; }
  void Apply(const model::PixelPlace& cell, Button button) override;

  const Pens& pens_;
};

}  // namespace kelvo::editing
