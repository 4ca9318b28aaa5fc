#include "ui/frm_zoom.h"

#include <utility>

namespace kelvo::ui {
frmZoom::frmZoom(const model::PictureImage& picture, QWidget* parent)
    : QWidget(parent),
      picture_(picture),
      surface_(model::kZoomSurfaceWidth, model::kZoomSurfaceHeight),
      picStd_(new ZoomPicture(surface_, area_, this)) {
  setObjectName("frmZoom");
  picStd_->setObjectName("picStd");
  picStd_->setAccessibleName("Zoom picture");
  picStd_->setAccessibleDescription("The part of the picture that is painted on.");
  setFixedSize(picStd_->sizeHint());
  connect(picStd_, &SurfaceView::Pressed, this, &frmZoom::Pressed);
  connect(picStd_, &SurfaceView::Moved, this, &frmZoom::Moved);
  connect(picStd_, &SurfaceView::Released, this, &frmZoom::Released);
  SetMagnification(area_.Magnification());
  DrawBorder();
}

template <typename Change>
void frmZoom::ChangeArea(Change&& change) {
  const model::ZoomArea before = area_;
  change();
  if (area_ == before) return;
  DrawCapturePic();
  emit AreaChanged();
}

void frmZoom::SetMagnification(int magnification) {
  area_.SetMagnification(magnification);
  setWindowTitle(QString(" Zoom (%1:1)").arg(area_.Magnification()));
  DrawCapturePic();
  emit AreaChanged();
}

void frmZoom::CentreOn(int col, int row) {
  ChangeArea([&] { area_.CentreOn(col, row); });
}

void frmZoom::Move(model::ZoomMove move, model::ZoomStep step) {
  ChangeArea([&] { area_.Move(move, step); });
}

void frmZoom::SetGridColor(model::C64Colour colour) {
  grid_.colour = colour;
  DrawCapturePic();
}

void frmZoom::SetBorder(model::ZoomBorder border) {
  border_.Set(border);
  DrawBorder();
}

void frmZoom::TickBorder() {
  if (border_.Tick()) DrawBorder();
}

void frmZoom::DrawBorder() {
  constexpr int kBorder = model::ZoomArea::kBorder;
  constexpr int kWidth = model::kZoomSurfaceWidth, kHeight = model::kZoomSurfaceHeight;
  model::DrawZoomBorder(border_.Colour(), surface_);
  for (const model::Rect& side :
       {model::Rect{0, 0, kWidth, kBorder}, model::Rect{0, kHeight - kBorder, kWidth, kBorder},
        model::Rect{0, 0, kBorder, kHeight}, model::Rect{kWidth - kBorder, 0, kBorder, kHeight}}) {
    picStd_->Refresh(side);
  }
}

void frmZoom::ShowPreview(editing::Points points, model::C64Colour colour) {
  picStd_->ShowPreview(std::move(points), colour);
}

void frmZoom::DrawCapturePic() {
  model::DrawCapturePic(picture_, area_, grid_, surface_);
  picStd_->Refresh();
}

void frmZoom::RedrawZoomChar(int cell) {
  if (!area_.ShowsCell(cell)) return;
  model::RedrawZoomChar(picture_, cell, area_, grid_, surface_);
  picStd_->Refresh(area_.CellRect(cell));
}

void frmZoom::PutZoomPixel(int x, int y) {
  if (!area_.ShowsPixel(x, y)) return;
  model::PutZoomPixel(picture_, x, y, area_, grid_, surface_);
  picStd_->Refresh(area_.PixelRect(x, y));
}

}  // namespace kelvo::ui
