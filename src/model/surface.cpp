#include "model/surface.h"

#include <algorithm>

namespace kelvo::model {

void Surface::Fill(const Rect& area, std::uint32_t colour) {
  const int left = std::max(area.x, 0), right = std::min(area.x + area.width, width_);
  if (left >= right) return;
  const int bottom = std::min(area.y + area.height, height_);
  for (int y = std::max(area.y, 0); y < bottom; ++y) std::fill(Row(y) + left, Row(y) + right, colour);
}

}  // namespace kelvo::model
