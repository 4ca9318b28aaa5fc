// A widget that shows a Surface, pixel for pixel, and tells where the pointer is on it.
#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>

#include "model/surface.h"

namespace kelvo::ui {

// A surface pixel becomes as many device pixels as the display's scale asks for, as long as `unit` surface pixels (the
// side of the smallest thing drawn) come out at a whole number of them; else a little less. So nothing is ever blurred,
// and no two columns of one width come out at different widths.
class SurfaceView : public QWidget {
  Q_OBJECT

 public:
  SurfaceView(model::Surface& surface, int unit, QWidget* parent);

  // Shows a surface pixel `factor` times as large (1 or more), and `stretch` times as high as that. Whatever the
  // stretch, every row is a whole number of device pixels high, some one more than others: nothing is blurred.
  void Magnify(int factor, double stretch);
  // Shows another surface, which outlives the view.
  void ShowSurface(model::Surface& surface);
  // The widget pixels that a surface pixel takes across.
  double Scale() const { return scale_x_; }

  // The widget pixels that a surface pixel takes on a display with `device` pixels for each of a widget (1 or more).
  static double ScaleOn(double device, int unit);

  // The surface was drawn on in `area`, or everywhere.
  void Refresh(const model::Rect& area);
  void Refresh();

  // The surface pixel under a place of the widget; it may lie outside the surface.
  QPoint SurfacePoint(const QPointF& place) const;
  // A rectangle of the surface in the widget's coordinates.
  QRectF WidgetRect(const model::Rect& area) const;

  QSize sizeHint() const override;

 signals:
  void Pressed(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void Moved(QPoint at, Qt::MouseButtons buttons);
  // Every press is followed by one, also when it is only noticed that the button is up.
  void Released(Qt::MouseButton button);
  void PointerLeft();
  // Steps of a wheel: x to the right, y downwards.
  void Wheeled(QPoint at, QPoint steps, Qt::KeyboardModifiers modifiers);

 protected:
  // What is drawn over the surface, in the surface's coordinates.
  virtual void PaintOverlay(QPainter&) {}

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void TakeScale();
  void TakeMouseBack();

  QImage image_;  // the surface's own pixels, not a copy
  int unit_;
  int factor_ = 1;
  double stretch_ = 1.0, scale_x_ = 1.0, scale_y_ = 1.0;
  Qt::MouseButtons held_;
  QPoint wheel_;   // what was turned and did not make a whole step yet
  QRect waiting_;  // what is to be painted next: one rectangle, so that a fill's many pixels cost Qt one update
};

}  // namespace kelvo::ui
