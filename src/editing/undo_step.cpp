#include "editing/undo_step.h"

namespace kelvo::editing {

void UndoStep::SaveUndoData(std::string_view caption) {
  before_ = picture_;
  caption_ = caption;
}

void UndoStep::Undo() {
  if (!CanUndo()) return;
  picture_.Bitmap = before_.Bitmap;
  picture_.ColourMemory = before_.ColourMemory;
  picture_.ScreenMemory = before_.ScreenMemory;
  Forget();
  views_.PictureChanged();
}

}  // namespace kelvo::editing
