#include "ui/desks/picture_windows.h"

namespace kelvo::ui {

void PictureWindows::PixelChanged(int x, int y) {
  full_view_.PutPixel(x, y);
  zoom_.PutZoomPixel(x, y);
}

void PictureWindows::CellChanged(int cell) {
  full_view_.RedrawChar(cell);
  zoom_.RedrawZoomChar(cell);
}

void PictureWindows::PictureChanged() {
  full_view_.DrawPicture();
  zoom_.DrawCapturePic();
}

}  // namespace kelvo::ui
