#include "ui/desks/large_zoom.h"

#include <algorithm>
#include <utility>

#include "ui/windows/window_layout.h"

namespace kelvo::ui {

std::vector<QMdiSubWindow*> LargeZoom::Beside() const {
  std::vector<QMdiSubWindow*> beside;
  const int middle = Window().geometry().center().x();
  for (QMdiSubWindow* other : area_.subWindowList()) {
    if (other != &Window() && !other->isHidden() && other->x() > middle) beside.push_back(other);
  }
  return beside;
}

QSize LargeZoom::Largest() const {
  return Window().Chrome() + zoom_.SizeFor(40, 25) * (zoom_.Area().Is8X() ? 2 : 1);
}

QRect LargeZoom::Room() const {
  QRect area = area_.viewport()->rect().marginsRemoved({kWindowGap, kWindowGap, kWindowGap, kWindowGap});
  const bool is_limited = below_ != nullptr && !below_->isHidden() && below_->y() > Window().geometry().center().y();
  if (is_limited) area.setBottom(std::min(area.bottom(), below_->y() - kWindowGap - 1));
  int right = area.right();
  for (const QMdiSubWindow* other : Beside()) right = std::min(right, other->x() - kWindowGap - 1);
  return {area.topLeft(), QSize(right + 1 - area.left(), area.height()).boundedTo(Largest())};
}

// How far the windows beside the zoom window can go to the right, as far as that helps it.
int LargeZoom::RoomBesideOthers() const {
  QRect others;
  for (const QMdiSubWindow* other : Beside()) others |= other->geometry();
  if (others.isNull()) return 0;
  const int free = area_.viewport()->width() - kWindowGap - others.right() - 1;
  return std::max(0, std::min(free, Largest().width() + 2 * kWindowGap - others.left()));
}

void LargeZoom::MoveOthers(int distance) {
  for (QMdiSubWindow* other : Beside()) other->move(other->pos() + QPoint(distance, 0));
}

bool LargeZoom::IsLarge() const {
  return !before_.isNull() && Window().geometry() == Room();
}

void LargeZoom::Toggle() {
  if (IsLarge()) {
    Window().setGeometry(std::exchange(before_, QRect()));
    MoveOthers(-others_moved_);
  } else {
    others_moved_ = RoomBesideOthers();
    MoveOthers(others_moved_);
    before_ = Window().geometry();
    Window().setGeometry(Room());
  }
  Window().show();
}

}  // namespace kelvo::ui
