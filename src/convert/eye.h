// How an eye at its usual distance blurs what it sees.
#pragma once

#include <array>
#include <cstddef>

#include "convert/colour_map.h"

namespace kelvo::convert {

// Weights of the pixels around one, which reach kAcross to either side and kDown up and down; they sum up to 1. Two
// Gaussians: a wide one for the colour of an area, a narrow one for what has a shape.
struct Eye {
  static constexpr int kAcross = 3, kDown = 5;
  static constexpr std::size_t kColumns = 2 * kAcross + 1, kLines = 2 * kDown + 1;

  Eye();

  std::array<std::array<float, kColumns>, kLines> weights{};
  // What two pixels of a cell have in common, both by their place in it (0..31): the sum of the products of the weights
  // that both have for the same place.
  std::array<std::array<float, CellGrid::kCellPixels>, CellGrid::kCellPixels> overlap{};

 private:
  void FillWeights();
  float Overlap(std::size_t across, std::size_t down) const;
};

extern const Eye kEye;

}  // namespace kelvo::convert
