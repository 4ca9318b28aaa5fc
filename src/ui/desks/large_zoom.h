// A zoom window as large as it goes: it takes the room beside the other windows, which move to the right.
#pragma once

#include <QMdiArea>
#include <QRect>
#include <vector>

#include "ui/widgets/child_window.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

class LargeZoom {
 public:
  // Both outlive it.
  LargeZoom(const QMdiArea& area, const frmZoom& zoom) : area_(area), zoom_(zoom) {}

  // A window that keeps its room while it stands below the zoom window; it outlives this.
  void KeepAbove(const QMdiSubWindow* window) { below_ = window; }
  // Makes the zoom window large, or gives all windows back the places that they had before.
  void Toggle();
  bool IsLarge() const;
  // The windows have other places now.
  void Forget() { before_ = {}; }

 private:
  ChildWindow& Window() const { return static_cast<ChildWindow&>(*zoom_.parentWidget()); }
  std::vector<QMdiSubWindow*> Beside() const;
  QSize Largest() const;
  QRect Room() const;
  int RoomBesideOthers() const;
  void MoveOthers(int distance);

  const QMdiArea& area_;
  const frmZoom& zoom_;
  const QMdiSubWindow* below_ = nullptr;
  QRect before_;          // the place that the zoom window had before it was made large
  int others_moved_ = 0;  // by how much the windows beside it made room then
};

}  // namespace kelvo::ui
