#include "editing/circle.h"

#include <cmath>
#include <cstdlib>

#include "editing/rounding.h"
#include "model/picture_image.h"

namespace kelvo::editing {

int CircleRadius(model::PixelPoint centre, model::PixelPoint point) {
  const int across = std::abs(point.x - centre.x);
  const int down = Round(std::abs(point.y - centre.y) / 2.0);
  if (across == 0) return down;
  if (point.y == centre.y) return across;
  return Round(std::sqrt(down * down + across * across));
}

Points DrawCircle(model::PixelPoint centre, int radius) {
  Points points;
  for (int dx = -radius; dx <= radius; ++dx) {
    const int x = centre.x + dx;
    if (x < 1 || x > model::PictureImage::kWidth) continue;
    const int height = 2 * Round(std::sqrt(radius * radius - dx * dx) + 0.1);
    const int below = centre.y + height, above = centre.y - height;
    if (below >= 1 && below <= model::PictureImage::kHeight) points.push_back({x, below});
    points.push_back({x, above});
  }
  return points;
}

}  // namespace kelvo::editing
