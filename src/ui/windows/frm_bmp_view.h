// The full view: the whole picture at 1:1.
#pragma once

#include <QImage>
#include <QProgressBar>
#include <QWidget>

#include "app/settings_store.h"
#include "model/full_view.h"
#include "model/picture_image.h"
#include "model/pixel_place.h"
#include "model/surface.h"
#include "model/zoom_area.h"
#include "ui/ports/frame_progress.h"
#include "ui/widgets/full_view_picture.h"

namespace kelvo::ui {

inline constexpr app::Setting kFullViewScale{"Settings", "FullViewScale", "1"};
inline constexpr app::Setting kFullViewPal{"Settings", "FullViewPAL", "0"};
inline constexpr int kLargestFullView = 3;

class frmBMPView : public QWidget {
  Q_OBJECT

 public:
  frmBMPView(const model::PictureImage& picture, QWidget* parent);

  void DrawPicture();
  void RedrawChar(int cell);    // 1..1000
  void PutPixel(int x, int y);  // 1..160, 1..200
  void ShowPlainCaption();      // no pointer is over the picture

  // Shows another picture instead, which is not edited; null shows the picture again.
  void ShowPreview(const model::PictureImage* other);

  // How large the picture is shown, 1..3 times, and whether as a PAL screen shows it.
  void SetScale(int scale, bool is_pal);
  int Scale() const { return scale_; }
  bool IsPal() const { return is_pal_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  // Marks the part that the zoom window shows, in full-view pixels.
  void ShowZoomArea(const model::ZoomArea& area);

  void ShowCellUse(bool on);

  // What is shown, without the marker: 320 x 200.
  QImage Picture() const;

  app::Progress& Progress() { return progress_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 signals:
  void ZoomAreaChosen(int col, int row);  // 1..40, 1..25
  // Alt and a button ask for the colour of a pixel instead.
  void ColourAsked(model::PixelPoint at, Qt::MouseButton button);

 private:
  QString Caption() const;
  void TintCells();
  void picStd_MouseDown(QPoint at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void picStd_MouseMove(QPoint at);
  void picStd_Click();

  const model::PictureImage& picture_;
  model::Surface surface_;
  bool previewing_ = false;
  int scale_ = 1;
  bool is_pal_ = false;
  bool shows_cell_use_ = false;
  bool asks_colour_ = false;  // the button that is held was pressed with Alt
  model::FullViewPointer pointer_;
  FullViewPicture* picStd_;
  QProgressBar* ProgressBar1_;
  FrameProgress progress_;
};

}  // namespace kelvo::ui
