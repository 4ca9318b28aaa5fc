// "Cell use" in the windows that show it: tints in both views, numbers in the colours window.
#pragma once

#include "files/document.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_colors.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

// Off at first. The views tint by themselves what they draw anew; the numbers want Refresh() when the picture changed.
class CellUseDesk {
 public:
  CellUseDesk(const files::Document& document, frmBMPView& full_view, frmZoom& zoom, frmColors& colors)
      : document_(document), full_view_(full_view), zoom_(zoom), colors_(colors) {}

  bool IsShown() const { return is_shown_; }
  void Toggle();
  void Refresh();

 private:
  const files::Document& document_;
  frmBMPView& full_view_;
  frmZoom& zoom_;
  frmColors& colors_;
  bool is_shown_ = false;
};

}  // namespace kelvo::ui
