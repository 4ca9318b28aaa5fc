#include "ui/widgets/source_pane.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/widgets/ink.h"

namespace kelvo::ui {
namespace {

constexpr int kCornerReach = 8;       // widget pixels
constexpr double kSmallestFrame = 1;  // pixels of the image, of either side of a frame
constexpr double kKeyShare = 0.02;    // of the image, that a key moves

QRectF RectOf(const convert::Area& area) {
  return {area.left, area.top, area.width, area.height};
}

}  // namespace

SourcePane::SourcePane(SharedLook& look, QWidget* parent) : ComparePane(look, parent) {
  setObjectName("picSource");
  setAccessibleName("Source image");
  setToolTip("Drag a frame around the part that you want");
}

void SourcePane::SetImage(const ShownImage& image) {
  image_ = image;
  update();
}

void SourcePane::SetArea(const convert::Area& area, const convert::Area& frame) {
  area_ = area;
  frame_ = RectOf(frame);
  update();
}

// Just what the other view shows, as large as there; but all of the image where nothing is enlarged.
QRectF SourcePane::ImageRect() const {
  const QRectF same = image_.WholeAround(area_, PictureRect());
  if (Look().Zoom() > 1 || QRectF(rect()).contains(same)) return same;
  const QSizeF size = QSizeF(image_.size).scaled(QSizeF(this->size()), Qt::KeepAspectRatio);
  return {(width() - size.width()) / 2, (height() - size.height()) / 2, size.width(), size.height()};
}

QRectF SourcePane::FrameRect() const {
  const QRectF whole = ImageRect();
  const double across = whole.width() / image_.size.width(), down = whole.height() / image_.size.height();
  return {whole.x() + frame_.x() * across, whole.y() + frame_.y() * down, frame_.width() * across,
          frame_.height() * down};
}

QPointF SourcePane::ImagePoint(QPointF place) const {
  const QRectF whole = ImageRect();
  return {std::clamp((place.x() - whole.x()) / whole.width(), 0.0, 1.0) * image_.size.width(),
          std::clamp((place.y() - whole.y()) / whole.height(), 0.0, 1.0) * image_.size.height()};
}

bool SourcePane::IsWhole() const {
  return frame_.width() >= image_.size.width() || frame_.height() >= image_.size.height();
}

void SourcePane::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintGround(painter);
  if (!image_.pixels.isNull()) {
    image_.Draw(painter, ImageRect());
    const QRectF frame = FrameRect();
    QPainterPath beside;
    beside.addRect(ImageRect());
    beside.addRect(frame & ImageRect());
    painter.fillPath(beside, QColor(0, 0, 0, 130));
    PaintRim(painter, frame.adjusted(-1, -1, 0, 0), Qt::DashLine);
  }
  PaintFocus(painter);
}

// Sets `anchor_` too.
SourcePane::Drag SourcePane::DragAt(QPointF place) {
  const QRectF frame = FrameRect();
  const std::array<std::pair<QPointF, QPointF>, 4> corners{{{frame.topLeft(), frame_.bottomRight()},
                                                            {frame.topRight(), frame_.bottomLeft()},
                                                            {frame.bottomLeft(), frame_.topRight()},
                                                            {frame.bottomRight(), frame_.topLeft()}}};
  for (const auto& [corner, opposite] : corners) {
    if ((corner - place).manhattanLength() > kCornerReach) continue;
    anchor_ = opposite;
    return Drag::kDraw;
  }
  anchor_ = ImagePoint(place);
  return frame.contains(place) && !IsWhole() ? Drag::kMove : Drag::kDraw;
}

void SourcePane::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || image_.pixels.isNull()) return ComparePane::mousePressEvent(event);
  drag_ = DragAt(event->position());
}

void SourcePane::mouseMoveEvent(QMouseEvent* event) {
  ComparePane::mouseMoveEvent(event);
  if (image_.pixels.isNull()) return;
  if (!event->buttons().testFlag(Qt::LeftButton)) drag_ = Drag::kNone;
  const QPointF at = ImagePoint(event->position());
  switch (drag_) {
    case Drag::kNone:
      return ShowCursor(event->position());
    case Drag::kDraw:
      return DrawTo(at);
    case Drag::kMove:
      Choose(frame_.translated(at - anchor_));
      anchor_ = at;
  }
}

void SourcePane::mouseReleaseEvent(QMouseEvent* event) {
  ComparePane::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) drag_ = Drag::kNone;
}

void SourcePane::ShowCursor(QPointF place) {
  const QPointF kept = anchor_;
  setCursor(DragAt(place) == Drag::kMove ? Qt::SizeAllCursor : Qt::CrossCursor);
  anchor_ = kept;
}

void SourcePane::DrawTo(QPointF image_point) {
  QPointF side = image_point - anchor_;
  if (shape_) {
    const double width = std::max(std::abs(side.x()), std::abs(side.y()) / *shape_);
    side = {std::copysign(width, side.x()), std::copysign(width * *shape_, side.y())};
  }
  const QRectF frame = QRectF(anchor_, QSizeF(side.x(), side.y())).normalized();
  if (frame.width() >= kSmallestFrame && frame.height() >= kSmallestFrame) Choose(frame);
}

// A frame is brought into the image: as it is where it has room, else smaller.
void SourcePane::Choose(QRectF frame) {
  const QSizeF whole = image_.size;
  const double smaller = std::min({1.0, whole.width() / frame.width(), whole.height() / frame.height()});
  frame.setSize(shape_ ? frame.size() * smaller
                       : QSizeF(std::min(frame.width(), whole.width()), std::min(frame.height(), whole.height())));
  frame.moveLeft(std::clamp(frame.left(), 0.0, whole.width() - frame.width()));
  frame.moveTop(std::clamp(frame.top(), 0.0, whole.height() - frame.height()));
  emit CropChosen(convert::Area{frame.x(), frame.y(), frame.width(), frame.height()});
}

void SourcePane::keyPressEvent(QKeyEvent* event) {
  if (image_.pixels.isNull() || !ChangeByKey(*event)) ComparePane::keyPressEvent(event);
}

bool SourcePane::ChangeByKey(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Home) {
    emit CropChosen({});
    return true;
  }
  if (event.key() < Qt::Key_Left || event.key() > Qt::Key_Down) return false;
  const QPointF way(event.key() == Qt::Key_Right  ? 1
                    : event.key() == Qt::Key_Left ? -1
                                                  : 0,
                    event.key() == Qt::Key_Down ? 1
                    : event.key() == Qt::Key_Up ? -1
                                                : 0);
  const QPointF by(way.x() * kKeyShare * image_.size.width(), way.y() * kKeyShare * image_.size.height());
  if (event.modifiers() == Qt::ShiftModifier) {
    Choose(frame_.translated(by));
  } else if (event.modifiers() == Qt::ControlModifier) {
    const double width = frame_.width() + by.x() + (shape_ ? by.y() / *shape_ : 0);
    const double height = shape_ ? width * *shape_ : frame_.height() + by.y();
    if (width >= kSmallestFrame && height >= kSmallestFrame) Choose({frame_.topLeft(), QSizeF(width, height)});
  } else {
    return false;
  }
  return true;
}

}  // namespace kelvo::ui
