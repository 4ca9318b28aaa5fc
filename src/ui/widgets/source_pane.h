// The image that a picture is made of, with a frame around the part that is taken.
#pragma once

#include <optional>

#include "ui/widgets/compare_pane.h"
#include "ui/widgets/shown_image.h"

namespace kelvo::ui {

// A drag with the left button draws a frame; inside one it moves it, from a corner it changes it. By keyboard: Shift
// and the arrows move it, Ctrl and the arrows change its size, Home takes the whole image again.
class SourcePane : public ComparePane {
  Q_OBJECT

 public:
  SourcePane(SharedLook& look, QWidget* parent);

  void SetImage(const ShownImage& image);
  // What is taken of the image, which may reach beyond it, and the frame around the part that it has.
  void SetArea(const convert::Area& area, const convert::Area& frame);
  // Height by width of the frame; nothing: any.
  void KeepShape(std::optional<double> shape) { shape_ = shape; }

 signals:
  void CropChosen(std::optional<convert::Area> crop);  // nothing: the whole image

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  enum class Drag { kNone, kDraw, kMove };

  QRectF ImageRect() const;
  QRectF FrameRect() const;
  QPointF ImagePoint(QPointF place) const;
  bool IsWhole() const;
  Drag DragAt(QPointF place);
  void ShowCursor(QPointF place);
  void DrawTo(QPointF image_point);
  void Choose(QRectF frame);
  bool ChangeByKey(const QKeyEvent& event);

  ShownImage image_;
  convert::Area area_;
  QRectF frame_;
  std::optional<double> shape_;
  Drag drag_ = Drag::kNone;
  QPointF anchor_;  // in the image: the corner that stays, or where the frame was taken
};

}  // namespace kelvo::ui
