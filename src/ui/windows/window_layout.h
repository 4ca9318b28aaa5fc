// Where the windows stand when they are arranged, as plain arithmetic.
#pragma once

#include <QRect>
#include <span>
#include <vector>

namespace kelvo::ui {

inline constexpr int kWindowGap = 3;
inline constexpr int kLeastCells = 8;  // of the zoom window, across and down

// How large the zoom window can be: its frame, and what it takes for cells at 4:1.
struct ZoomSizes {
  QSize chrome;
  QSize border;  // what shows no cell
  QSizeF cell;

  QSize For(QSize cells) const;
};

struct Arrangement {
  QRect zoom;
  std::vector<QRect> column;

  // What all of them take, but for the last one of the column.
  QSize Needed() const;
};

// The zoom window takes the left of `area`, as large as it goes and shows something (at least a few cells). The others
// follow in a column beside it, all of one width or several in a row below a wide one; the last one of the column takes
// what is left of the height. `below` is kept free under the zoom window. Where the area is too small the windows go
// beyond it to the right and downwards, and do not overlap.
Arrangement Arrange(QSize area, const ZoomSizes& zoom, std::span<const QSize> column, int below);

// Where a window of `size` can stand free of all `taken` ones: the first such place of `area`, in reading order; a null
// rectangle where there is none.
QRect FreePlace(const QRect& area, QSize size, std::span<const QRect> taken);

// `window` moved into `area`, as far as it goes: its upper left corner is always there.
QRect IntoReach(QRect window, const QRect& area);

}  // namespace kelvo::ui
