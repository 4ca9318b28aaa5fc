// The one step of undo.
#pragma once

#include <string>
#include <string_view>

#include "model/picture_image.h"
#include "model/picture_views.h"

namespace kelvo::editing {

// Holds the picture as it was before the last action. Neither the background colour nor the load address is part of it.
class UndoStep {
 public:
  UndoStep(model::PictureImage& picture, model::PictureViews& views) : picture_(picture), views_(views) {}

  // Takes the snapshot. `caption` names the action in the menu: "Undo draw".
  void SaveUndoData(std::string_view caption);

  // Puts the snapshot back; nothing when there is none.
  void Undo();

  // Another picture is in memory: the snapshot is none of its.
  void Forget() { caption_.clear(); }

  bool CanUndo() const { return !caption_.empty(); }
  std::string Caption() const { return CanUndo() ? caption_ : "Undo"; }

 private:
  model::PictureImage& picture_;
  model::PictureViews& views_;
  model::PictureImage before_;
  std::string caption_;  // empty: nothing to undo
};

}  // namespace kelvo::editing
