// Circles that are round on screen, where a pixel is twice as wide as high.
#pragma once

#include "editing/line.h"

namespace kelvo::editing {

// The radius, in pixel columns, of a circle around `centre` through `point`. Halves round to the even neighbour.
int CircleRadius(model::PixelPoint centre, model::PixelPoint point);

// The points of a circle, column by column. It is sampled by columns alone on purpose, so that the outline has gaps
// where it runs steeply. Columns outside the picture are left out; a point above it may be among the points and is not
// plotted.
Points DrawCircle(model::PixelPoint centre, int radius);

}  // namespace kelvo::editing
