// The one step of undo.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/picture_image.h"
#include "model/picture_views.h"

namespace kelvo::editing {

// Holds the picture as it was before the last action. Neither the background colour nor the load address is part of it.
class UndoStep {
 public:
  UndoStep(model::PictureImage& picture, model::PictureViews& views) : picture_(picture), views_(views) {}

  // Takes the snapshot, and tells the views that an action begins. `caption` names it in the menu: "Undo draw".
  void SaveUndoData(std::string_view caption);

  // Takes the snapshot and puts `picture` in place of what there is. Its background is that of the picture.
  void Replace(const model::PictureImage& picture, std::string_view caption);

  // Puts the snapshot back; nothing when there is none.
  void Undo();

  // The last action came to nothing: the step before it is back.
  void Withdraw();

  // Another picture is in memory: the snapshot is none of its.
  void Forget();

  bool CanUndo() const { return last_.has_value(); }
  std::string Caption() const { return last_ ? last_->caption : "Undo"; }
  // The last action by itself: "Draw". Empty when there is none.
  std::string ActionName() const;

 private:
  struct Step {
    model::PictureImage before;
    std::string caption;
  };

  model::PictureImage& picture_;
  model::PictureViews& views_;
  std::optional<Step> last_;
  std::optional<Step> earlier_;  // what the last one took the place of
};

}  // namespace kelvo::editing
