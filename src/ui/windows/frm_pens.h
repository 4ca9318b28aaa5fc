// The pens window: the colours of the left and the right mouse button.
#pragma once

#include <QWidget>

#include "model/c64_colour.h"
#include "ui/widgets/swatch_button.h"

class QLabel;

namespace kelvo::ui {

class frmPens : public QWidget {
  Q_OBJECT

 public:
  explicit frmPens(QWidget* parent);

  void ShowPens(model::C64Colour left, model::C64Colour right);

 signals:
  void LeftPenChosen(model::C64Colour colour);
  void RightPenChosen(model::C64Colour colour);
  void SwapAsked();

 private:
  struct PenRow {
    SwatchButton* swatch;
    QLabel* name;
  };
  PenRow MakeRow(const char* object_name);
  void LayOut(QWidget* swap);

  PenRow left_, right_;
};

}  // namespace kelvo::ui
