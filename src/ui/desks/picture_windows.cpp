#include "ui/desks/picture_windows.h"

namespace kelvo::ui {

void PictureWindows::ActionBegins(std::string_view caption) {
  if (watcher_ != nullptr) watcher_->ActionBegins(caption);
}

void PictureWindows::PixelChanged(int x, int y) {
  full_view_.PutPixel(x, y);
  zoom_.PutZoomPixel(x, y);
  if (watcher_ != nullptr) watcher_->Changing();
}

void PictureWindows::CellChanged(int cell) {
  full_view_.RedrawChar(cell);
  zoom_.RedrawZoomChar(cell);
  if (watcher_ != nullptr) watcher_->Changing();
}

void PictureWindows::PictureChanged() {
  full_view_.DrawPicture();
  zoom_.DrawCapturePic();
  if (watcher_ != nullptr) watcher_->Changed();
}

}  // namespace kelvo::ui
