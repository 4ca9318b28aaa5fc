// Brings every change of the picture to the two windows that show it, and to the history.
#pragma once

#include "model/picture_views.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

// Hears that the picture changes, and by which action.
class ChangeWatcher {
 public:
  virtual ~ChangeWatcher() = default;
  virtual void ActionBegins(std::string_view caption) = 0;
  virtual void Changing() = 0;  // a part of it, and mostly more of it soon
  virtual void Changed() = 0;   // as a whole
};

class PictureWindows final : public model::PictureViews {
 public:
  PictureWindows(frmBMPView& full_view, frmZoom& zoom) : full_view_(full_view), zoom_(zoom) {}

  // `watcher` outlives all changes.
  void TellToo(ChangeWatcher& watcher) { watcher_ = &watcher; }

  void ActionBegins(std::string_view caption) override;
  void PixelChanged(int x, int y) override;
  void CellChanged(int cell) override;
  void PictureChanged() override;
  void FullCellMet(int cell, model::FullCellFate fate) override { zoom_.FlashCell(cell, fate); }

 private:
  frmBMPView& full_view_;
  frmZoom& zoom_;
  ChangeWatcher* watcher_ = nullptr;
};

}  // namespace kelvo::ui
