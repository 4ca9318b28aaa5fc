// "What if the background were ...": each of the sixteen colours, and what it would mean as background.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "model/c64_colour.h"
#include "model/picture_image.h"

namespace kelvo::ui {

class frmWhatIf : public QDialog {
  Q_OBJECT

 public:
  frmWhatIf(const model::PictureImage& picture, QWidget* parent);

 signals:
  // A click tries a colour. Whoever hears of it changes the picture; the numbers then follow.
  void Tried(int number);  // 0..15

 private:
  struct Row {
    QPushButton* colour;
    QLabel* gain;
    QLabel* clash;
  };

  Row MakeRow(int number);
  void ShowNumbers();

  const model::PictureImage& picture_;
  std::array<Row, model::C64Colour::kCount> rows_{};
};

}  // namespace kelvo::ui
