// One of two views side by side that are zoomed and scrolled together.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QWidget>
#include <optional>

namespace kelvo::ui {

// Which part of the picture the views show, and how large.
class SharedLook : public QObject {
  Q_OBJECT

 public:
  static constexpr int kMostZoom = 8;

  int Zoom() const { return zoom_; }          // 1: all of it
  QPointF Centre() const { return centre_; }  // of the views, as shares of the picture, 0..1
  // Both are brought into their ranges.
  void Show(int zoom, QPointF centre);

 signals:
  void Changed();

 private:
  int zoom_ = 1;
  QPointF centre_{0.5, 0.5};
};

// Ctrl and the wheel, + and - zoom; the wheel, the arrows and a drag with the middle button scroll.
class ComparePane : public QWidget {
  Q_OBJECT

 public:
  // The look outlives the pane.
  ComparePane(SharedLook& look, QWidget* parent);

  // In pixels of a display, each side 1 or more.
  void SetPictureSize(QSize size);

  // The size to begin with: what a display of `room` has for two of them, beside what else there is.
  void PreferSize(QSize room, QSize beside);
  QSize sizeHint() const override { return preferred_; }

 protected:
  // Where the picture lies in the widget: every pixel of it as large as the next.
  QRectF PictureRect() const;
  SharedLook& Look() const { return look_; }

  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  // The colour around pictures, and the mark of the focus.
  void PaintGround(QPainter& painter);
  void PaintFocus(QPainter& painter);

 private:
  double Unit() const;
  QPointF ShownCentre() const;
  void ZoomAt(QPointF place, int zoom);
  void Scroll(QPointF by);

  SharedLook& look_;
  QSize picture_, preferred_;
  QPoint wheel_;  // what was turned and did not make a whole step yet
  std::optional<QPointF> dragged_from_;
};

}  // namespace kelvo::ui
