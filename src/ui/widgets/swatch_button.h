// A button that shows one C64 colour and what it is used for.
#pragma once

#include <QAbstractButton>
#include <QFontMetrics>
#include <QString>
#include <optional>

#include "model/c64_colour.h"

namespace kelvo::ui {

// "Light red": the colour's name without its number.
QString PlainColourName(model::C64Colour colour);
// The one of these names that is the widest in `letters`.
QString WidestColourName(const QFontMetrics& letters);

// Any mouse button presses it; the keyboard's Space stands for the left one, with Ctrl for the right, with Shift for
// the left with Shift.
class SwatchButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit SwatchButton(QWidget* parent);

  // The key that stands for a click, in the lower left corner (where no number of cells is) and in the tip.
  void SetKey(QChar key) { key_ = key; }

  // Shows `colour`; `marks` are letters in its corner, `in_cell` puts a dot below them. `role` begins the accessible
  // name.
  void Show(model::C64Colour colour, const QString& role = {}, const QString& marks = {}, bool in_cell = false);
  // In how many cells the colour is, below the marks and behind the name; nothing: not said.
  void ShowCells(std::optional<int> cells);
  model::C64Colour Colour() const { return colour_; }

  QSize sizeHint() const override;

 signals:
  void Chosen(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Name();
  QFont SmallFont() const;
  void PaintLetters(QPainter& painter, const QColor& ink) const;
  void PaintFocus(QPainter& painter) const;

  model::C64Colour colour_;
  QString role_, marks_;
  QChar key_;
  std::optional<int> cells_;
  bool in_cell_ = false;
};

}  // namespace kelvo::ui
