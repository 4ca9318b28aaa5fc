#include "ui/widgets/swatch_button.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "model/palette.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/ink.h"

namespace kelvo::ui {
namespace {

constexpr int kCountPixels = 10;  // the height of the number of cells

}  // namespace

QString PlainColourName(model::C64Colour colour) {
  return ToQt(model::ColourName(colour)).mid(3);
}

SwatchButton::SwatchButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  Show({});
}

void SwatchButton::Show(model::C64Colour colour, const QString& role, const QString& marks, bool in_cell) {
  colour_ = colour;
  role_ = role;
  marks_ = marks;
  in_cell_ = in_cell;
  Name();
}

void SwatchButton::ShowCells(std::optional<int> cells) {
  if (cells_ == cells) return;
  cells_ = cells;
  Name();
}

void SwatchButton::Name() {
  const QString name = ToQt(model::ColourName(colour_));
  const QString cells = cells_ ? QString(", in %1 %2").arg(*cells_).arg(*cells_ == 1 ? "cell" : "cells") : QString();
  setAccessibleName((role_.isEmpty() ? name : role_ + ": " + name) + cells);
  setToolTip(accessibleName());
  update();
}

QSize SwatchButton::sizeHint() const {
  return {32, 28};
}

void SwatchButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor fill = QColor::fromRgb(model::SurfaceColour(colour_));
  painter.fillRect(rect(), fill);
  painter.setPen(hasFocus() ? QPen(palette().highlight(), 3) : QPen(palette().mid(), 1));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(InkOn(fill));
  painter.drawText(rect().adjusted(4, 1, -3, -1), Qt::AlignLeft | Qt::AlignTop, marks_);
  if (cells_) {
    QFont small = font();
    small.setPixelSize(kCountPixels);
    painter.setFont(small);
    painter.drawText(rect().adjusted(3, 1, -1, -2), Qt::AlignLeft | Qt::AlignBottom, QString::number(*cells_));
  }
  if (!in_cell_) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(InkOn(fill));
  painter.drawEllipse(QPointF(width() - 7, height() - 7), 2.5, 2.5);
}

void SwatchButton::mousePressEvent(QMouseEvent* event) {
  emit Chosen(event->button(), event->modifiers());
}

void SwatchButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space) return QAbstractButton::keyPressEvent(event);
  const bool right = event->modifiers().testFlag(Qt::ControlModifier);
  emit Chosen(right ? Qt::RightButton : Qt::LeftButton, event->modifiers() & Qt::ShiftModifier);
}

}  // namespace kelvo::ui
