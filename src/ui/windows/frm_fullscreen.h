// The fullscreen view: the picture stretched over the whole screen.
#pragma once

#include <QImage>
#include <QWidget>

namespace kelvo::ui {

// A key release, a press or a click anywhere closes it.
class frmFullscreen : public QWidget {
  Q_OBJECT

 public:
  frmFullscreen(const QImage& picture, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QImage picture_;
  bool key_was_pressed_here_ = false;
};

}  // namespace kelvo::ui
