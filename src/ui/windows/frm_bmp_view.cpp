#include "ui/windows/frm_bmp_view.h"

namespace kelvo::ui {
namespace {

// A PAL screen's pixel is narrower than high by this. The view becomes higher by it: all columns stay equally wide.
constexpr double kPalPixel = 0.936;

// The box holds the picture and a margin of two pixels, and stands one pixel inside the form.
constexpr int kBoxWidth = model::kFullViewWidth + 2, kBoxHeight = model::kFullViewHeight + 2;

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
      picStd_(new FullViewPicture(surface_, this)),
      ProgressBar1_(MakeProgressBar(this)),
      progress_(*ProgressBar1_) {
  setObjectName("frmBMPView");
  setWindowTitle(Caption());
  picStd_->setObjectName("picStd");
  picStd_->setAccessibleName("Full view picture");
  picStd_->setAccessibleDescription("The whole picture. A click shows the place in the zoom window.");
  surface_.Fill({0, 0, kBoxWidth, kBoxHeight}, 0xFF000000);
  connect(picStd_, &SurfaceView::Moved, this, [this](QPoint at, Qt::MouseButtons held) {
    picStd_MouseMove(at);
    if (held.testFlag(Qt::LeftButton) && !asks_colour_) picStd_Click();  // dragging drags the zoom area along
  });
  connect(picStd_, &SurfaceView::PointerLeft, this, &frmBMPView::ShowPlainCaption);
  connect(picStd_, &SurfaceView::Pressed, this, &frmBMPView::picStd_MouseDown);
}

QString frmBMPView::Caption() const {
  return QString(" Full view (%1:1)").arg(scale_);
}

void frmBMPView::SetScale(int scale, bool is_pal) {
  scale_ = scale;
  is_pal_ = is_pal;
  picStd_->Magnify(scale, is_pal ? 1 / kPalPixel : 1.0);
  updateGeometry();
  ShowPlainCaption();
}

// One pixel around the box; a wider form has it in its middle.
QSize frmBMPView::sizeHint() const {
  return picStd_->sizeHint() + QSize(2, 2);
}

void frmBMPView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  picStd_->move((width() - picStd_->sizeHint().width()) / 2, 1);
}

void frmBMPView::ShowPreview(const model::PictureImage* other) {
  previewing_ = other != nullptr;
  app::NoProgress none;
  model::DrawPicture(previewing_ ? *other : picture_, surface_, none);
  picStd_->Refresh();
  TintCells();
}

void frmBMPView::ShowCellUse(bool on) {
  shows_cell_use_ = on;
  TintCells();
}

void frmBMPView::TintCells() {
  picStd_->ShowCellUse(shows_cell_use_ && !previewing_ ? &picture_ : nullptr);
}

void frmBMPView::DrawPicture() {
  if (previewing_) return;
  model::DrawPicture(picture_, surface_, progress_);
  picStd_->Refresh();
}

void frmBMPView::RedrawChar(int cell) {
  if (previewing_) return;
  model::RedrawChar(picture_, cell, surface_);
  picStd_->Refresh(model::FullViewCellRect(cell));
}

void frmBMPView::PutPixel(int x, int y) {
  if (previewing_) return;
  model::PutPixel(picture_, x, y, surface_);
  picStd_->Refresh({(x - 1) * 2, y - 1, 2, 1});
}

void frmBMPView::ShowZoomArea(const model::ZoomArea& area) {
  picStd_->Mark({area.ZoomOriginX(), area.ZoomOriginY(), area.VisibleWidth(), area.VisibleHeight()});
}

QImage frmBMPView::Picture() const {
  const QImage box(reinterpret_cast<const uchar*>(surface_.Row(0)), surface_.Width(), surface_.Height(),
                   QImage::Format_RGB32);
  return box.copy(0, 0, model::kFullViewWidth, model::kFullViewHeight);
}

void frmBMPView::ShowPlainCaption() {
  if (windowTitle() != Caption()) setWindowTitle(Caption());
}

void frmBMPView::picStd_MouseMove(QPoint at) {
  pointer_ = model::PointAtFullView(at.x(), at.y());
  setWindowTitle(QString("%1 x=%2, y=%3, col=%4, row=%5")
                     .arg(Caption())
                     .arg(at.x() + 1)
                     .arg(at.y() + 1)
                     .arg(pointer_.col)
                     .arg(pointer_.row));
}

void frmBMPView::picStd_MouseDown(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  picStd_MouseMove(at);
  asks_colour_ = modifiers.testFlag(Qt::AltModifier) && (button == Qt::LeftButton || button == Qt::RightButton);
  if (!asks_colour_) return picStd_Click();
  emit ColourAsked({pointer_.x, pointer_.y}, button);
}

void frmBMPView::picStd_Click() {
  emit ZoomAreaChosen(pointer_.col, pointer_.row);
}

}  // namespace kelvo::ui
