// Brings every change of the picture to the two windows that show it.
#pragma once

#include "model/picture_views.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

class PictureWindows final : public model::PictureViews {
 public:
  PictureWindows(frmBMPView& full_view, frmZoom& zoom) : full_view_(full_view), zoom_(zoom) {}

  void PixelChanged(int x, int y) override;
  void CellChanged(int cell) override;
  void PictureChanged() override;
  void FullCellMet(int cell, model::FullCellFate fate) override { zoom_.FlashCell(cell, fate); }

 private:
  frmBMPView& full_view_;
  frmZoom& zoom_;
};

}  // namespace kelvo::ui
