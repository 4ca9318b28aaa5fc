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

// The surface's own pixels, not a copy.
QImage ImageOf(model::Surface& surface) {
  return {reinterpret_cast<const uchar*>(surface.Row(0)), surface.Width(), surface.Height(), QImage::Format_RGB32};
}

}  // namespace

SurfaceView::SurfaceView(model::Surface& surface, int unit, QWidget* parent)
    : QWidget(parent), image_(ImageOf(surface)), unit_(unit) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  TakeScale();
}

double SurfaceView::ScaleOn(double device, int unit) {
  return std::max(std::floor(device * unit), 1.0) / unit / device;
}

void SurfaceView::TakeScale() {
  scale_x_ = factor_ * ScaleOn(devicePixelRatioF(), unit_ * factor_);
  scale_y_ = scale_x_ * stretch_;
  setFixedSize(SurfaceView::sizeHint());
}

void SurfaceView::Magnify(int factor, double stretch) {
  factor_ = factor;
  stretch_ = stretch;
  TakeScale();
  update();
}

void SurfaceView::ShowSurface(model::Surface& surface) {
  image_ = ImageOf(surface);
  TakeScale();
  update();
}

QSize SurfaceView::sizeHint() const {
  const QSizeF size(image_.width() * scale_x_, image_.height() * scale_y_);
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
  return {static_cast<int>(std::floor(place.x() / scale_x_)), static_cast<int>(std::floor(place.y() / scale_y_))};
}

QRectF SurfaceView::WidgetRect(const model::Rect& area) const {
  return {area.x * scale_x_, area.y * scale_y_, area.width * scale_x_, area.height * scale_y_};
}

void SurfaceView::paintEvent(QPaintEvent* event) {
  waiting_ = {};
  QPainter painter(this);
  if (scale_x_ == 1.0 && scale_y_ == 1.0 && devicePixelRatioF() == 1.0) {
    for (const QRect& part : event->region()) painter.drawImage(part, image_, part);
  } else {
    painter.fillRect(event->rect(), Qt::black);  // the fraction of a pixel that the widget is larger
    painter.scale(scale_x_, scale_y_);
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
