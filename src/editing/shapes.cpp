#include "editing/shapes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "model/picture_image.h"

namespace kelvo::editing {
namespace {

constexpr double kBias = 0.01;

// To the nearest whole number, halves to the even neighbour.
int Round(double value) {
  return static_cast<int>(std::nearbyint(value));
}

// The rows from a circle's centre to its outline in the column `dx` beside it, 0..radius.
int HeightOfCircle(int radius, int dx) {
  return 2 * Round(std::sqrt(radius * radius - dx * dx) + 0.1);
}

}  // namespace

Points DrawLine(model::PixelPoint from, model::PixelPoint to) {
  const int dx = to.x - from.x, dy = to.y - from.y;
  const int steps = std::max(std::abs(dx), std::abs(dy));
  Points points;
  if (steps == 0) return points;
  const double x_step = static_cast<double>(dx) / steps, y_step = static_cast<double>(dy) / steps;
  double x = from.x + kBias, y = from.y + kBias;
  for (int step = 0; step < steps; ++step, x += x_step, y += y_step) points.push_back({Round(x), Round(y)});
  return points;
}

Points PathBetween(model::PixelPoint from, model::PixelPoint to) {
  Points points = DrawLine(from, to);
  if (!points.empty()) points.erase(points.begin());
  points.push_back(to);
  return points;
}

int CircleRadius(model::PixelPoint centre, model::PixelPoint point) {
  const int across = std::abs(point.x - centre.x);
  const int down = Round(std::abs(point.y - centre.y) / 2.0);
  if (across == 0) return down;
  if (point.y == centre.y) return across;
  return Round(std::sqrt(down * down + across * across));
}

Points DrawCircle(model::PixelPoint centre, int radius, CircleOutline outline) {
  Points points;
  for (int dx = -radius; dx <= radius; ++dx) {
    const int x = centre.x + dx;
    if (x < 1 || x > model::PictureImage::kWidth) continue;
    const int height = HeightOfCircle(radius, dx);
    const int below = centre.y + height, above = centre.y - height;
    if (below >= 1 && below <= model::PictureImage::kHeight) points.push_back({x, below});
    points.push_back({x, above});
    if (outline == CircleOutline::kSampled || dx == 0) continue;
    // Up to the row before that of the next column inwards, so that the two touch by their corners.
    for (int rise = height + 1; rise < HeightOfCircle(radius, std::abs(dx) - 1); ++rise) {
      points.push_back({x, centre.y + rise});
      points.push_back({x, centre.y - rise});
    }
  }
  return points;
}

}  // namespace kelvo::editing
