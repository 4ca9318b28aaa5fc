#include "editing/line.h"

#include <algorithm>
#include <cstdlib>

#include "editing/rounding.h"

namespace kelvo::editing {
namespace {

constexpr double kBias = 0.01;

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

}  // namespace kelvo::editing
