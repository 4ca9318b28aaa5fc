// A picture whose grain makes an eye see more colours than a cell has.
#pragma once

#include <functional>
#include <optional>

#include "convert/closest_fit.h"
#include "convert/preparation.h"

namespace kelvo::convert {

// How far a search goes.
struct SearchEffort {
  int free_sweeps;  // with all colours allowed
  int candidates;   // of a cell, 4..16
  int rounds;       // in each of them every cell may get another colour
  int last_sweeps;
};

// `closest` is the best picture without dither. `step` is called between steps, rounds + 3 times at most, and may throw
// to end the search.
ColourMap DrawDithered(const CellGrid& grid, const LightMap& light, const PaletteLight& palette,
                       const ClosestFit& closest, float grain, std::optional<model::C64Colour> background,
                       const SearchEffort& effort, const std::function<void()>& step);

}  // namespace kelvo::convert
