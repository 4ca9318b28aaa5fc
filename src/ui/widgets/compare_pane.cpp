#include "ui/widgets/compare_pane.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace kelvo::ui {
namespace {

constexpr int kWheelStep = 120;  // eighths of a degree
constexpr int kScrollPixels = 40;
constexpr int kMostPreferred = 2;
constexpr QSize kScreen(320, 200), kSmallestPane(200, 125);

// The centre of a view that shows `share` of a length: nothing beyond the ends is seen that need not be.
double Inside(double centre, double share) {
  return share >= 1 ? 0.5 : std::clamp(centre, share / 2, 1 - share / 2);
}

}  // namespace

void SharedLook::Show(int zoom, QPointF centre) {
  zoom_ = std::clamp(zoom, 1, kMostZoom);
  centre_ = {std::clamp(centre.x(), 0.0, 1.0), std::clamp(centre.y(), 0.0, 1.0)};
  emit Changed();
}

ComparePane::ComparePane(SharedLook& look, QWidget* parent)
    : QWidget(parent), look_(look), picture_(kScreen), preferred_(kScreen) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setMinimumSize(kSmallestPane);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  connect(&look, &SharedLook::Changed, this, qOverload<>(&QWidget::update));
}

void ComparePane::SetPictureSize(QSize size) {
  picture_ = size;
  update();
}

void ComparePane::PreferSize(QSize room, QSize beside) {
  const QSize free = room - beside;
  const int factor = std::min(free.width() / 2 / kScreen.width(), free.height() / kScreen.height());
  preferred_ = kScreen * std::clamp(factor, 1, kMostPreferred);
}

// The widget pixels of a picture's: a whole number of device pixels, where there is room for that.
double ComparePane::Unit() const {
  const double device = devicePixelRatioF();
  const double room = std::min<double>(width() * device / picture_.width(), height() * device / picture_.height());
  return (room >= 1 ? std::floor(room) : room) / device * look_.Zoom();
}

QPointF ComparePane::ShownCentre() const {
  const double unit = Unit();
  return {Inside(look_.Centre().x(), width() / (unit * picture_.width())),
          Inside(look_.Centre().y(), height() / (unit * picture_.height()))};
}

QRectF ComparePane::PictureRect() const {
  const QSizeF size = QSizeF(picture_) * Unit();
  const QPointF centre = ShownCentre();
  const double device = devicePixelRatioF();
  const auto whole = [device](double at) { return std::round(at * device) / device; };
  return {whole(width() / 2.0 - centre.x() * size.width()), whole(height() / 2.0 - centre.y() * size.height()),
          size.width(), size.height()};
}

void ComparePane::ZoomAt(QPointF place, int zoom) {
  zoom = std::clamp(zoom, 1, SharedLook::kMostZoom);
  const QRectF now = PictureRect();
  const QPointF kept((place.x() - now.x()) / now.width(), (place.y() - now.y()) / now.height());
  const double grown = static_cast<double>(zoom) / look_.Zoom();
  const QPointF beside = place - QPointF(width() / 2.0, height() / 2.0);
  look_.Show(zoom, kept - QPointF(beside.x() / (now.width() * grown), beside.y() / (now.height() * grown)));
}

void ComparePane::Scroll(QPointF by) {
  const QRectF now = PictureRect();
  look_.Show(look_.Zoom(), ShownCentre() + QPointF(by.x() / now.width(), by.y() / now.height()));
}

void ComparePane::wheelEvent(QWheelEvent* event) {
  wheel_ -= event->angleDelta();
  QPoint steps(wheel_.x() / kWheelStep, wheel_.y() / kWheelStep);
  wheel_ -= steps * kWheelStep;
  event->accept();
  if (steps.isNull()) return;
  if (event->modifiers().testFlag(Qt::ControlModifier)) return ZoomAt(event->position(), look_.Zoom() - steps.y());
  if (event->modifiers().testFlag(Qt::ShiftModifier)) steps = steps.transposed();
  Scroll(steps * kScrollPixels);
}

void ComparePane::keyPressEvent(QKeyEvent* event) {
  const QPointF middle(width() / 2.0, height() / 2.0);
  switch (event->key()) {
    case Qt::Key_Plus:
      return ZoomAt(middle, look_.Zoom() + 1);
    case Qt::Key_Minus:
      return ZoomAt(middle, look_.Zoom() - 1);
    case Qt::Key_Left:
      return Scroll({-kScrollPixels, 0});
    case Qt::Key_Right:
      return Scroll({kScrollPixels, 0});
    case Qt::Key_Up:
      return Scroll({0, -kScrollPixels});
    case Qt::Key_Down:
      return Scroll({0, kScrollPixels});
    default:
      QWidget::keyPressEvent(event);
  }
}

void ComparePane::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) dragged_from_ = event->position();
}

void ComparePane::mouseMoveEvent(QMouseEvent* event) {
  if (!dragged_from_) return;
  Scroll(*dragged_from_ - event->position());
  dragged_from_ = event->position();
}

void ComparePane::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) dragged_from_.reset();
}

void ComparePane::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void ComparePane::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

void ComparePane::PaintGround(QPainter& painter) {
  painter.fillRect(rect(), palette().color(QPalette::Mid));
}

void ComparePane::PaintFocus(QPainter& painter) {
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace kelvo::ui
