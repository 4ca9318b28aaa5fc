// The colours window: the sixteen colours, what each is used for, and the colour that is painted with.
#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "model/c64_colour.h"
#include "model/pixel_colour.h"
#include "ui/widgets/swatch_button.h"

namespace kelvo::ui {

class frmColors : public QWidget {
  Q_OBJECT

 public:
  explicit frmColors(QWidget* parent);

  // The swatch of the left pen, that of the background, and the mark of the right pen.
  void PaintColor(model::C64Colour colour);
  void BGColor(model::C64Colour colour);
  void RightColor(model::C64Colour colour);

  // Marks the own colours of the cell under the pointer.
  void ShowCell(const model::CellColours& cell);

  // In how many cells each colour is, by its number; nothing: without these numbers.
  void ShowCellCounts(const std::optional<std::array<int, model::C64Colour::kCount>>& cells);

 signals:
  void LeftPenChosen(model::C64Colour colour);
  void RightPenChosen(model::C64Colour colour);
  void BackgroundChosen(model::C64Colour colour);

 private:
  void Choose(model::C64Colour colour, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void ShowMarks();

  model::C64Colour left_, right_, background_;
  std::optional<model::CellColours> cell_;
  std::array<SwatchButton*, model::C64Colour::kCount> swatches_{};
  SwatchButton* paint_;
  SwatchButton* back_;
};

}  // namespace kelvo::ui
