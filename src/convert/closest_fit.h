// The picture without dither: the least error that the cell rule allows.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "convert/colour_map.h"
#include "convert/colour_space.h"

namespace kelvo::convert {

// For each pixel of `grid` the squared OKLab distance to each colour.
using ColourErrors = std::vector<std::array<float, model::C64Colour::kCount>>;
ColourErrors ErrorsOf(const std::vector<Triple>& lab, const PaletteLight& palette);

// The number of the colour in `set`, which has one at least, with the least error; of equals the first.
std::uint8_t ClosestOf(const std::array<float, model::C64Colour::kCount>& errors, ColourSet set);

// The best of all sets of four colours in each cell, for each background.
struct ClosestFit {
  using ByBackground = std::array<ColourSet, model::C64Colour::kCount>;

  std::vector<ByBackground> sets;                       // by cell; holds the background
  std::array<double, model::C64Colour::kCount> errors;  // the sum over all pixels

  // The background with the least error; of equals the first.
  model::C64Colour BestBackground() const;
};

// The true minimum: every set is looked at once.
ClosestFit FitClosest(const CellGrid& grid, const ColourErrors& errors);

// Each pixel in the closest colour of its cell's set.
ColourMap DrawClosest(const CellGrid& grid, const ColourErrors& errors, const ClosestFit& fit,
                      model::C64Colour background);

}  // namespace kelvo::convert
