// The points of shapes. Lines are made by a digital differential analyser with a fixed bias; circles are round on
// screen, where a pixel is twice as wide as high.
#pragma once

#include <vector>

#include "model/pixel_place.h"

namespace kelvo::editing {

using Points = std::vector<model::PixelPoint>;

// The points of a line, from `from` on. The last one, `to`, is left out on purpose: in a continuous line the next
// segment starts there and plots it. So a line from a point to itself has no points. Halves round upwards by a bias of
// 0.01.
Points DrawLine(model::PixelPoint from, model::PixelPoint to);

// Every pixel that a pointer crosses on its way, `to` included and `from` left out.
Points PathBetween(model::PixelPoint from, model::PixelPoint to);

// The radius, in pixel columns, of a circle around `centre` through `point`. Halves round to the even neighbour.
int CircleRadius(model::PixelPoint centre, model::PixelPoint point);

enum class CircleOutline {
  kSampled,  // by columns alone, on purpose: it has gaps where it runs steeply
  kClosed,   // the same points, and those that close the gaps: a fill inside stays inside
};

// The points of a circle, column by column. Columns outside the picture are left out; a point above or below it may be
// among the points and is not plotted.
Points DrawCircle(model::PixelPoint centre, int radius, CircleOutline outline = CircleOutline::kSampled);

}  // namespace kelvo::editing
