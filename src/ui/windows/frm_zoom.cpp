#include "ui/windows/frm_zoom.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "model/pixel_place.h"

namespace kelvo::ui {
namespace {

// At 4:1.
constexpr int kCellSide = 32, kFirstCellsWide = 20, kFirstCellsHigh = 18, kLeastCellsShown = 6;

}  // namespace

frmZoom::frmZoom(const model::PictureImage& picture, QWidget* parent)
    : QWidget(parent),
      picture_(picture),
      surface_(model::kZoomSurfaceWidth, model::kZoomSurfaceHeight),
      picStd_(new ZoomPicture(surface_, area_, this)) {
  setObjectName("frmZoom");
  picStd_->setObjectName("picStd");
  TellCursor({});
  picStd_->setAccessibleDescription("The part of the picture that is painted on.");
  ConnectBox();
  SetMagnification(area_.Magnification());
  DrawBorder();
}

QSize frmZoom::SizeFor(int cells_wide, int cells_high) const {
  const auto side = [this](int cells) {
    return static_cast<int>(std::ceil((cells * kCellSide + 2 * model::ZoomArea::kBorder) * picStd_->Scale()));
  };
  return {side(cells_wide), side(cells_high)};
}

QSize frmZoom::sizeHint() const {
  return SizeFor(kFirstCellsWide, kFirstCellsHigh);
}

QSize frmZoom::minimumSizeHint() const {
  return SizeFor(kLeastCellsShown, kLeastCellsShown);
}

void frmZoom::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitRoom();
}

void frmZoom::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  FitRoom();  // the display's scale is known now
  DrawCapturePic();
}

// What is left around whole cells.
void frmZoom::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(event->rect(), Qt::black);
}

void frmZoom::FitRoom() {
  const auto room = [this](int side) {
    return static_cast<int>(std::floor(side / picStd_->Scale())) - 2 * model::ZoomArea::kBorder;
  };
  const model::ZoomArea before = area_;
  area_.SetRoom(room(width()), room(height()));
  FitSurface();
  if (area_ == before) return;
  DrawCapturePic();
  emit AreaChanged();
}

void frmZoom::FitSurface() {
  if (surface_.Width() != area_.SurfaceWidth() || surface_.Height() != area_.SurfaceHeight()) {
    surface_ = model::Surface(area_.SurfaceWidth(), area_.SurfaceHeight());
    picStd_->ShowSurface(surface_);
    DrawBorder();
  }
  picStd_->move((width() - picStd_->width()) / 2, (height() - picStd_->height()) / 2);
}

template <typename Change>
void frmZoom::ChangeArea(Change&& change) {
  const model::ZoomArea before = area_;
  change();
  if (area_ == before) return;  // cppcheck-suppress knownConditionTrueFalse ; it does not see what the change changes
  DrawCapturePic();
  emit AreaChanged();
}

void frmZoom::ConnectBox() {
  connect(picStd_, &SurfaceView::Pressed, this,
          [this](QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
            grip_ = at;
            emit Pressed(at, button, modifiers);
          });
  connect(picStd_, &SurfaceView::Moved, this, [this](QPoint at, Qt::MouseButtons held) {
    DragArea(at, held);
    emit Moved(at, held);
  });
  connect(picStd_, &SurfaceView::Released, this, &frmZoom::Released);
  connect(picStd_, &SurfaceView::Wheeled, this, &frmZoom::Wheel);
}

void frmZoom::SetMagnification(int magnification) {
  area_.SetMagnification(magnification);
  MagnificationDone();
}

void frmZoom::MagnificationDone() {
  setWindowTitle(QString(" Zoom (%1:1)").arg(area_.Magnification()));
  FitSurface();
  DrawCapturePic();
  emit AreaChanged();
  emit MagnificationChanged();
}

void frmZoom::Scroll(QPoint steps) {
  ChangeArea([&] { area_.MoveTo(area_.ZoomOriginX() + steps.x() * 8, area_.ZoomOriginY() + steps.y() * 8); });
}

void frmZoom::Wheel(QPoint at, QPoint steps, Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::ControlModifier)) {
    area_.SetMagnificationAround(steps.y() < 0 ? 8 : 4, at.x(), at.y());
    return MagnificationDone();
  }
  Scroll(modifiers.testFlag(Qt::ShiftModifier) ? steps.transposed() : steps);
}

// The picture follows the middle button cell by cell.
void frmZoom::DragArea(QPoint at, Qt::MouseButtons held) {
  if (!held.testFlag(Qt::MiddleButton)) return;
  const int cell = 8 * area_.Magnification();
  const QPoint steps((grip_.x() - at.x()) / cell, (grip_.y() - at.y()) / cell);
  grip_ -= steps * cell;
  if (!steps.isNull()) Scroll(steps);
}

void frmZoom::CentreOn(int col, int row) {
  ChangeArea([&] { area_.CentreOn(col, row); });
}

void frmZoom::Move(model::ZoomMove move, model::ZoomStep step) {
  ChangeArea([&] { area_.Move(move, step); });
}

void frmZoom::Reveal(model::PixelPoint at) {
  ChangeArea([&] { area_.Reveal(at.x, at.y); });
}

void frmZoom::TellCursor(const QString& place) {
  picStd_->setAccessibleName(place.isEmpty() ? "Zoom picture" : "Zoom picture, " + place);
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
  model::DrawZoomBorder(border_.Colour(), surface_);
  for (const model::Rect& side : model::ZoomBorderSides(surface_)) picStd_->Refresh(side);
}

void frmZoom::ShowPreview(editing::Points points, model::C64Colour colour) {
  picStd_->ShowPreview(std::move(points), colour);
}

void frmZoom::ShowChangesFrom(const std::optional<model::PictureImage>& before) {
  picStd_->ShowChanges(picture_, before);
}

void frmZoom::SetOnionSkin(model::OnionSkin skin) {
  if (skin.pictures.empty() && onion_skin_.pictures.empty()) return;
  onion_skin_ = std::move(skin);
  DrawCapturePic();
}

void frmZoom::DrawCapturePic() {
  if (!isVisible()) return;  // drawn when it is shown
  model::DrawCapturePic(picture_, area_, grid_, surface_);
  model::MixOnionSkin(onion_skin_, area_, surface_);
  picStd_->Refresh();
}

void frmZoom::RedrawZoomChar(int cell) {
  if (!area_.ShowsCell(cell)) return;
  model::RedrawZoomChar(picture_, cell, area_, grid_, surface_);
  model::MixOnionSkinCell(onion_skin_, cell, area_, surface_);
  picStd_->Refresh(area_.CellRect(cell));
}

void frmZoom::PutZoomPixel(int x, int y) {
  if (!area_.ShowsPixel(x, y)) return;
  model::PutZoomPixel(picture_, x, y, area_, grid_, surface_);
  model::MixOnionSkinPixel(onion_skin_, x, y, area_, surface_);
  picStd_->Refresh(picStd_->ShowsChanges() ? area_.CellRect(model::LookUpPixel(x, y).cell) : area_.PixelRect(x, y));
}

}  // namespace kelvo::ui
