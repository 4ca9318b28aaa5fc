// Frames that play, as large as the user makes the window.
#pragma once

#include <QWidget>

#include "model/picture_image.h"
#include "model/surface.h"

namespace kelvo::ui {

// Escape closes it.
class frmPlayer : public QWidget {
  Q_OBJECT

 public:
  explicit frmPlayer(QWidget* parent);

  void ShowPicture(const model::PictureImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  model::Surface surface_;
};

}  // namespace kelvo::ui
