// The zoom window: a part of the picture at 4:1 or 8:1, where painting happens.
#pragma once

#include <QWidget>
#include <optional>

#include "app/settings_store.h"
#include "editing/shapes.h"
#include "model/onion_skin.h"
#include "model/picture_image.h"
#include "model/surface.h"
#include "model/zoom_area.h"
#include "model/zoom_border.h"
#include "model/zoom_view.h"
#include "ui/widgets/zoom_picture.h"

namespace kelvo::ui {

inline constexpr app::Setting kMagnification{"Settings", "Magnification", "4"};
inline constexpr app::Setting kGridColor{"Settings", "GridColor", "9"};

class frmZoom : public QWidget {
  Q_OBJECT

 public:
  frmZoom(const model::PictureImage& picture, QWidget* parent);

  const model::ZoomArea& Area() const { return area_; }
  // The size of a window that shows so many cells at 4:1, and half as many at 8:1.
  QSize SizeFor(int cells_wide, int cells_high) const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  void SetMagnification(int magnification);  // 4 or 8; shows the top left of the picture
  void CentreOn(int col, int row);           // 1..40, 1..25
  void Move(model::ZoomMove move, model::ZoomStep step);
  void Reveal(model::PixelPoint at);  // scrolls no further than it takes

  model::C64Colour GridColor() const { return grid_.colour; }
  void SetGridColor(model::C64Colour colour);
  void SetBorder(model::ZoomBorder border);
  void TickBorder();

  // Shows points over the picture, as if they were drawn in `colour`; an empty list takes them away.
  void ShowPreview(editing::Points points, model::C64Colour colour);

  // The keyboard's cursor around a pixel; none: empty.
  void ShowCursor(std::optional<model::PixelPoint> at) { picStd_->ShowCursor(at); }
  // Tells a screen reader where the cursor is; nothing: there is none.
  void TellCursor(const QString& place);

  // A full cell (1..1000) lights up for a moment.
  void FlashCell(int cell, model::FullCellFate fate) { picStd_->FlashCell(cell, fate); }

  void ShowCellUse(bool on) { picStd_->ShowCellUse(on ? &picture_ : nullptr); }

  // Tints the cells that look otherwise than in `before`; empty: none.
  void ShowChangesFrom(const std::optional<model::PictureImage>& before);

  // Other pictures shine through.
  void SetOnionSkin(model::OnionSkin skin);

  void DrawCapturePic();
  void RedrawZoomChar(int cell);    // 1..1000
  void PutZoomPixel(int x, int y);  // 1..160, 1..200

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 signals:
  void AreaChanged();
  void MagnificationChanged();
  // Pointer events on the picture box, in pixels of the zoom surface.
  void Pressed(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void Moved(QPoint at, Qt::MouseButtons buttons);
  void Released(Qt::MouseButton button);

 private:
  template <typename Change>
  void ChangeArea(Change&& change);
  void FitRoom();
  void FitSurface();
  void DrawBorder();
  void ConnectBox();
  void MagnificationDone();
  void Scroll(QPoint steps);
  void Wheel(QPoint at, QPoint steps, Qt::KeyboardModifiers modifiers);
  void DragArea(QPoint at, Qt::MouseButtons held);

  const model::PictureImage& picture_;
  model::ZoomArea area_;
  model::ZoomGrid grid_;
  model::ZoomBorderColour border_;
  model::OnionSkin onion_skin_;
  model::Surface surface_;
  ZoomPicture* picStd_;
  QPoint grip_;  // where a middle drag holds the picture: the surface pixel of its last whole step
};

}  // namespace kelvo::ui
