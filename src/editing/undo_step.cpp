#include "editing/undo_step.h"

#include <cctype>
#include <utility>

namespace kelvo::editing {
namespace {

// "Draw" for "Undo draw".
std::string NameOf(std::string_view caption) {
  constexpr std::string_view kUndo = "Undo ";
  std::string name(caption.substr(kUndo.size()));
  name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
  return name;
}

}  // namespace

void UndoStep::SaveUndoData(std::string_view caption) {
  views_.ActionBegins(NameOf(caption));
  earlier_ = std::move(last_);
  last_ = Step{picture_, std::string(caption)};
}

void UndoStep::Replace(const model::PictureImage& picture, std::string_view caption) {
  SaveUndoData(caption);
  picture_ = picture;
  views_.PictureChanged();
}

void UndoStep::Withdraw() {
  last_ = std::exchange(earlier_, std::nullopt);
}

void UndoStep::Forget() {
  last_.reset();
  earlier_.reset();
}

std::string UndoStep::ActionName() const {
  return last_ ? NameOf(last_->caption) : std::string();
}

void UndoStep::Undo() {
  if (!CanUndo()) return;
  views_.ActionBegins(last_->caption);
  picture_.Bitmap = last_->before.Bitmap;
  picture_.ColourMemory = last_->before.ColourMemory;
  picture_.ScreenMemory = last_->before.ScreenMemory;
  Forget();
  views_.PictureChanged();
}

}  // namespace kelvo::editing
