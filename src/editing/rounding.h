// The rounding of shapes.
#pragma once

#include <cmath>

namespace kelvo::editing {

// To the nearest whole number, halves to the even neighbour.
inline int Round(double value) {
  return static_cast<int>(std::nearbyint(value));
}

}  // namespace kelvo::editing
