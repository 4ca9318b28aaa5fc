#include "ui/widgets/surface_view.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace kelvo::ui {
namespace {

constexpr int kWheelStep = 120;  // eighths of a degree

}  // namespace

SurfaceView::SurfaceView(model::Surface& surface, int unit, QWidget* parent)
    : QWidget(parent),
      image_(reinterpret_cast<const uchar*>(surface.Row(0)), surface.Width(), surface.Height(), QImage::Format_RGB32),
      unit_(unit) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  TakeScale();
}

double SurfaceView::ScaleOn(double device, int unit) {
  return std::max(std::floor(device * unit), 1.0) / unit / device;
}

void SurfaceView::TakeScale() {
  scale_ = ScaleOn(devicePixelRatioF(), unit_);
  setFixedSize(SurfaceView::sizeHint());
}

QSize SurfaceView::sizeHint() const {
  const QSizeF size = QSizeF(image_.size()) * scale_;
  return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

void SurfaceView::Refresh(const model::Rect& area) {
  const QRect changed = WidgetRect(area).toAlignedRect();
  if (waiting_.contains(changed)) return;
  waiting_ |= changed;
  update(waiting_);
}

void SurfaceView::Refresh() {
  update();
}

QPoint SurfaceView::SurfacePoint(const QPointF& place) const {
  return {static_cast<int>(std::floor(place.x() / scale_)), static_cast<int>(std::floor(place.y() / scale_))};
}

QRectF SurfaceView::WidgetRect(const model::Rect& area) const {
  return {area.x * scale_, area.y * scale_, area.width * scale_, area.height * scale_};
}

void SurfaceView::paintEvent(QPaintEvent* event) {
  waiting_ = {};
  QPainter painter(this);
  if (scale_ == 1.0 && devicePixelRatioF() == 1.0) {
    for (const QRect& part : event->region()) painter.drawImage(part, image_, part);
  } else {
    painter.fillRect(event->rect(), Qt::black);  // the fraction of a pixel that the widget is larger
    painter.scale(scale_, scale_);
    painter.drawImage(0, 0, image_);
  }
  PaintOverlay(painter);
}

void SurfaceView::showEvent(QShowEvent* event) {
  TakeScale();
  QWidget::showEvent(event);
}

bool SurfaceView::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked && mouseGrabber() == this) releaseMouse();
  if (event->type() == QEvent::WindowUnblocked) TakeMouseBack();
  return QWidget::event(event);
}

// A message box in the middle of a drag makes Qt forget whose press it was: it would hand on no move and no release.
void SurfaceView::TakeMouseBack() {
  const Qt::MouseButtons held = QGuiApplication::mouseButtons();
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (held_.testFlag(button) && !held.testFlag(button)) emit Released(button);
  }
  held_ &= held;
  if (held_ != Qt::NoButton) grabMouse();
}

void SurfaceView::mousePressEvent(QMouseEvent* event) {
  held_ = event->buttons();
  emit Pressed(SurfacePoint(event->position()), event->button(), event->modifiers());
}

void SurfaceView::mouseMoveEvent(QMouseEvent* event) {
  held_ &= event->buttons();
  emit Moved(SurfacePoint(event->position()), event->buttons());
}

void SurfaceView::mouseReleaseEvent(QMouseEvent* event) {
  held_ = event->buttons();
  if (held_ == Qt::NoButton && mouseGrabber() == this) releaseMouse();
  emit Released(event->button());
}

void SurfaceView::wheelEvent(QWheelEvent* event) {
  wheel_ -= event->angleDelta();
  const QPoint steps(wheel_.x() / kWheelStep, wheel_.y() / kWheelStep);
  wheel_ -= steps * kWheelStep;
  if (!steps.isNull()) emit Wheeled(SurfacePoint(event->position()), steps, event->modifiers());
  event->accept();
}

void SurfaceView::leaveEvent(QEvent* event) {
  emit PointerLeft();
  QWidget::leaveEvent(event);
}

}  // namespace kelvo::ui
