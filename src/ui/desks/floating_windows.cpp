#include "ui/desks/floating_windows.h"

#include <QMdiSubWindow>
#include <vector>

#include "ui/windows/window_layout.h"
#include "ui/windows/window_places.h"

namespace kelvo::ui {

QSize FloatingWindows::SizeOf(const QWidget& window) {
  return window.sizeHint() + kAround;
}

QRect FloatingWindows::FreePlaceOver(QSize size) const {
  const auto global = [this](const QRect& place) { return place.translated(area_.viewport()->mapToGlobal(QPoint())); };
  std::vector<QRect> taken;
  for (const QMdiSubWindow* child : area_.subWindowList()) taken.push_back(global(child->geometry()));
  const QRect free = FreeArea(frame_.geometry());
  const QRect area = global(area_.viewport()->rect()) & free;
  if (const QRect inside = FreePlace(area, size, taken); !inside.isNull()) return inside;
  const QRect frame = frame_.frameGeometry();
  for (const QPoint corner :
       {QPoint(frame.right() + 1 + kWindowGap, frame.top()), QPoint(frame.left(), frame.bottom() + 1 + kWindowGap),
        QPoint(frame.left() - size.width() - kWindowGap, frame.top())}) {
    if (free.contains(QRect(corner, size))) return {corner, size};
  }
  return {};
}

void FloatingWindows::Place(QWidget& window) const {
  const QSize size = SizeOf(window);
  QRect place = FreePlaceOver(size);
  if (place.isNull()) {
    const QRect space = frame_.geometry() & FreeArea(frame_.geometry());
    place = QRect(space.bottomRight() - QPoint(size.width(), size.height() + kAround.height()), size);
  }
  const QPoint inside(kAround.width() / 2, kAround.height() - kAround.width() / 2);
  window.setGeometry(QRect(place.topLeft() + inside, window.sizeHint()));
  BringIntoReach(window);
}

void FloatingWindows::Place(QWidget& window, QPoint place) const {
  const QRect content(place, window.sizeHint());
  if (!CanBeTakenOnAScreen(content.translated(0, -kAround.height() / 2))) return Place(window);
  window.setGeometry(content);
}

}  // namespace kelvo::ui
