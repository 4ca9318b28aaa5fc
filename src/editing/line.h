// Lines: a digital differential analyser with a fixed bias.
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

}  // namespace kelvo::editing
