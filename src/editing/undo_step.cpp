#include "editing/undo_step.h"

#include <utility>

namespace kelvo::editing {

void UndoStep::SaveUndoData(std::string_view caption) {
  earlier_ = std::move(last_);
  last_ = Step{picture_, std::string(caption)};
}

void UndoStep::Withdraw() {
  last_ = std::exchange(earlier_, std::nullopt);
}

void UndoStep::Forget() {
  last_.reset();
  earlier_.reset();
}

void UndoStep::Undo() {
  if (!CanUndo()) return;
  picture_.Bitmap = last_->before.Bitmap;
  picture_.ColourMemory = last_->before.ColourMemory;
  picture_.ScreenMemory = last_->before.ScreenMemory;
  Forget();
  views_.PictureChanged();
}

}  // namespace kelvo::editing
