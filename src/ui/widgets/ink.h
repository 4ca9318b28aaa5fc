// What is drawn on a colour so that it can be read.
#pragma once

#include <QColor>

namespace kelvo::ui {

// Black or white, whichever reads better on `colour`.
inline QColor InkOn(const QColor& colour) {
  constexpr int kLight = 120;  // of the 256 greys of qGray
  return qGray(colour.rgb()) > kLight ? Qt::black : Qt::white;
}

}  // namespace kelvo::ui
