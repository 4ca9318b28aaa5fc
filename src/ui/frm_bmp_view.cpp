#include "ui/frm_bmp_view.h"

namespace kelvo::ui {
namespace {

constexpr auto kCaption = " Full view (1:1)";

// The box holds the picture and a margin of two pixels, and stands one pixel inside the form.
constexpr int kBoxWidth = model::kFullViewWidth + 2, kBoxHeight = model::kFullViewHeight + 2;
constexpr int kWholePixels = 1;

QProgressBar* MakeProgressBar(QWidget* parent) {
  auto* bar = new QProgressBar(parent);
  bar->setObjectName("ProgressBar1");
  bar->setAccessibleName("Progress");
  bar->setTextVisible(false);
  bar->setGeometry(8, 8, kBoxWidth - 16, 12);
  bar->hide();
  return bar;
}

}  // namespace

frmBMPView::frmBMPView(const model::PictureImage& picture, QWidget* parent)
    : QWidget(parent),
      picture_(picture),
      surface_(kBoxWidth, kBoxHeight),
      picStd_(new SurfaceView(surface_, kWholePixels, this)),
      ProgressBar1_(MakeProgressBar(this)),
      progress_(*ProgressBar1_) {
  setObjectName("frmBMPView");
  setWindowTitle(kCaption);
  picStd_->setObjectName("picStd");
  picStd_->setAccessibleName("Full view picture");
  picStd_->setAccessibleDescription("The whole picture. A click shows the place in the zoom window.");
  picStd_->move(1, 1);
  surface_.Fill({0, 0, kBoxWidth, kBoxHeight}, 0xFF000000);
  setFixedSize(picStd_->sizeHint() + QSize(2, 2));
  connect(picStd_, &SurfaceView::Moved, this, [this](QPoint at) { picStd_MouseMove(at); });
  connect(picStd_, &SurfaceView::PointerLeft, this, &frmBMPView::ShowPlainCaption);
  connect(picStd_, &SurfaceView::Pressed, this, [this](QPoint at) {
    picStd_MouseMove(at);
    picStd_Click();
  });
}

void frmBMPView::DrawPicture() {
  model::DrawPicture(picture_, surface_, progress_);
  picStd_->Refresh();
}

void frmBMPView::RedrawChar(int cell) {
  model::RedrawChar(picture_, cell, surface_);
  picStd_->Refresh(model::FullViewCellRect(cell));
}

void frmBMPView::PutPixel(int x, int y) {
  model::PutPixel(picture_, x, y, surface_);
  picStd_->Refresh({(x - 1) * 2, y - 1, 2, 1});
}

void frmBMPView::ShowPlainCaption() {
  if (windowTitle() != kCaption) setWindowTitle(kCaption);
}

void frmBMPView::picStd_MouseMove(QPoint at) {
  pointer_ = model::PointAtFullView(at.x(), at.y());
  setWindowTitle(QString("%1 x=%2, y=%3, col=%4, row=%5")
                     .arg(kCaption)
                     .arg(at.x() + 1)
                     .arg(at.y() + 1)
                     .arg(pointer_.col)
                     .arg(pointer_.row));
}

void frmBMPView::picStd_Click() {
  emit ZoomAreaChosen(pointer_.col, pointer_.row);
}

}  // namespace kelvo::ui
