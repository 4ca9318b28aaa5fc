#include "ui/windows/window_layout.h"

#include <algorithm>
#include <cmath>

namespace kelvo::ui {
namespace {

constexpr QSize kMostCells(40, 25);

int CellsIn(int room, double cell, int least, int most) {
  return std::clamp(static_cast<int>(std::floor(room / cell)), least, most);
}

// Rows of windows, as many in each as fit into the width of the widest one.
std::vector<QRect> Column(QPoint corner, std::span<const QSize> sizes, int bottom) {
  int width = 0;
  for (const QSize size : sizes) width = std::max(width, size.width());
  std::vector<QRect> places;
  QPoint at = corner;
  int row_height = 0;
  for (const QSize size : sizes) {
    if (at.x() > corner.x() && at.x() + size.width() > corner.x() + width) {
      at = {corner.x(), at.y() + row_height + kWindowGap};
      row_height = 0;
    }
    places.emplace_back(at, size);
    at.rx() += size.width() + kWindowGap;
    row_height = std::max(row_height, size.height());
  }
  if (!places.empty()) places.back().setBottom(std::max(places.back().bottom(), bottom));
  return places;
}

}  // namespace

QSize ZoomSizes::For(QSize cells) const {
  return chrome + border +
         QSize(static_cast<int>(std::ceil(cells.width() * cell.width())),
               static_cast<int>(std::ceil(cells.height() * cell.height())));
}

QSize Arrangement::Needed() const {
  QRect all = zoom;
  for (const QRect& window : std::span(column).first(column.empty() ? 0 : column.size() - 1)) all |= window;
  return {all.right() + 1 + kWindowGap, all.bottom() + 1 + kWindowGap};
}

Arrangement Arrange(QSize area, const ZoomSizes& zoom, std::span<const QSize> column, int below) {
  int column_width = 0;
  for (const QSize size : column) column_width = std::max(column_width, size.width());
  const QSize around = zoom.chrome + zoom.border;
  const QSize room = area - around - QSize(column_width + 3 * kWindowGap, below + 2 * kWindowGap);
  const QSize cells(CellsIn(room.width(), zoom.cell.width(), kLeastCells, kMostCells.width()),
                    CellsIn(room.height(), zoom.cell.height(), kLeastCells, kMostCells.height()));
  const QRect place(QPoint(kWindowGap, kWindowGap), zoom.For(cells));
  return {place, Column({place.right() + 1 + kWindowGap, kWindowGap}, column, area.height() - kWindowGap - 1)};
}

QRect FreePlace(const QRect& area, QSize size, std::span<const QRect> taken) {
  std::vector<int> lefts{area.left() + kWindowGap}, tops{area.top() + kWindowGap};
  for (const QRect& other : taken) {
    lefts.push_back(other.right() + 1 + kWindowGap);
    tops.push_back(other.bottom() + 1 + kWindowGap);
  }
  std::sort(lefts.begin(), lefts.end());
  std::sort(tops.begin(), tops.end());
  for (const int top : tops) {
    for (const int left : lefts) {
      const QRect place(QPoint(left, top), size);
      const bool is_free =
          std::none_of(taken.begin(), taken.end(), [&](auto& other) { return other.intersects(place); });
      if (is_free && area.contains(place)) return place;
    }
  }
  return {};
}

QRect IntoReach(QRect window, const QRect& area) {
  window.moveRight(std::min(window.right(), area.right()));
  window.moveBottom(std::min(window.bottom(), area.bottom()));
  window.moveLeft(std::max(window.left(), area.left()));
  window.moveTop(std::max(window.top(), area.top()));
  return window;
}

}  // namespace kelvo::ui
