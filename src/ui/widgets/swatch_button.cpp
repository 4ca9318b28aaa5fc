#include "ui/widgets/swatch_button.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "model/palette.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/ink.h"

namespace kelvo::ui {

QString PlainColourName(model::C64Colour colour) {
  return ToQt(model::ColourName(colour)).mid(3);
}

QString WidestColourName(const QFontMetrics& letters) {
  QString widest;
  int most = 0;
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    const QString name = PlainColourName(*model::C64Colour::FromNumber(number));
    const int width = letters.horizontalAdvance(name);
    if (width > most) widest = name;
    most = std::max(most, width);
  }
  return widest;
}

SwatchButton::SwatchButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
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
  setToolTip(key_.isNull() ? accessibleName() : QString("%1 (key %2)").arg(accessibleName()).arg(key_));
  update();
}

// Room for two lines of small letters.
QFont SwatchButton::SmallFont() const {
  constexpr double kOfTheOthers = 0.8;
  QFont small = font();
  small.setPointSizeF(QFontInfo(small).pointSizeF() * kOfTheOthers);
  return small;
}

QSize SwatchButton::sizeHint() const {
  const QFontMetrics letters(SmallFont());
  return QSize(32, 28).expandedTo({letters.horizontalAdvance("RB") + 8, 2 * letters.ascent() + 6});
}

void SwatchButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor fill = QColor::fromRgb(model::SurfaceColour(colour_)), ink = InkOn(fill);
  painter.fillRect(rect(), fill);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  PaintLetters(painter, ink);
  if (hasFocus()) PaintFocus(painter);
  if (!in_cell_) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  painter.drawEllipse(QPointF(width() - 7, height() - 7), 3, 3);
}

void SwatchButton::PaintLetters(QPainter& painter, const QColor& ink) const {
  const QRect inside = rect().adjusted(4, 2, -4, -2);
  QFont letters = SmallFont();
  letters.setBold(true);
  painter.setFont(letters);
  painter.setPen(ink);
  painter.drawText(inside, Qt::AlignLeft | Qt::AlignTop, marks_);
  letters.setBold(false);
  if (cells_) {
    letters.setPixelSize(height() / 3);  // four digits have room
    painter.setFont(letters);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignBottom, QString::number(*cells_));
  } else if (!key_.isNull()) {
    QColor faint = ink;
    faint.setAlphaF(0.6F);
    painter.setFont(letters);
    painter.setPen(faint);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignBottom, key_);
  }
}

// Dotted and in black and white, which no mark of a chosen colour is.
void SwatchButton::PaintFocus(QPainter& painter) const {
  PaintRim(painter, rect().adjusted(1, 1, -2, -2), Qt::DotLine);
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
