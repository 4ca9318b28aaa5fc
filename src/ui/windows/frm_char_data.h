// The char data window: the cell under the pointer, enlarged, in bytes and in colours.
#pragma once

#include <QLabel>
#include <QWidget>
#include <array>

#include "model/picture_image.h"
#include "model/pixel_place.h"
#include "model/surface.h"
#include "ui/widgets/surface_view.h"
#include "ui/widgets/swatch_button.h"

namespace kelvo::ui {

class frmCharData : public QWidget {
  Q_OBJECT

 public:
  frmCharData(const model::PictureImage& picture, QWidget* parent);

  // Shows the cell of `place`, and the bit pairs of its line: the pair at the pointer's position is the selected one.
  void Show(const model::PixelPlace& place);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  // One of the cell's four colours: its slot, its swatch, its name and the number of its pixels.
  struct SlotRow {
    SwatchButton* swatch;
    QLabel* name;
    QLabel* count;
  };
  QLayout* MakeBits();
  QLayout* MakeSlots();
  void ShowBytes();
  void ShowSlots();
  void ShowBitPairs();

  const model::PictureImage& picture_;
  model::PixelPlace place_;
  model::Surface surface_;
  SurfaceView* picStd_;
  std::array<QLabel*, 4> lblBits_{};
  QLabel* lblBytes_;
  QLabel* lblCell_;
  std::array<SlotRow, 4> slots_{};
};

}  // namespace kelvo::ui
