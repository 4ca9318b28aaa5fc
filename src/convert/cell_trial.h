// What the halftone of one cell would be with other colours, without making it.
#pragma once

#include <array>
#include <cstdint>

#include "convert/halftone.h"

namespace kelvo::convert {

// Only what the cell's pixels do to one another is followed, by the mean metric of the cell.
class CellTrial {
 public:
  using Colours = std::array<std::uint8_t, CellGrid::kCellPixels>;

  struct Outcome {
    float gain = 0;  // what is added to the whole error: the less the better
    Colours colours{};
  };

  CellTrial(const Halftone& halftone, int cell);

  // Every pixel takes the best colour of `set`, which has one to four, up to `rounds` times or until none changes.
  Outcome Try(ColourSet set, int rounds) const;

 private:
  using Slopes = std::array<Triple, CellGrid::kCellPixels>;

  float ScoreOf(std::size_t pixel, const Triple& slope, std::uint8_t colour) const;
  void Spread(Slopes& slopes, std::size_t pixel, std::uint8_t from, std::uint8_t to) const;

  const PaletteLight& palette_;
  Colours colours_{};
  Slopes slopes_{};
  std::array<ColourScores, CellGrid::kCellPixels> bases_;
  std::array<Triple, model::C64Colour::kCount> effects_;  // of a colour on the slope of another pixel, by the overlap
};

}  // namespace kelvo::convert
