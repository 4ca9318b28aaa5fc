// Which colours a cell gets, judged by the halftone that can be made of them.
#pragma once

#include <optional>
#include <vector>

#include "convert/closest_fit.h"
#include "convert/halftone.h"

namespace kelvo::convert {

// By cell, at most four colours, the background among them.
struct CellSets {
  model::C64Colour background;
  std::vector<ColourSet> sets;
};

// From a halftone in which all colours were allowed: for each cell, the best of the sets that can be made of the
// `candidates` colours most used in it and around it; the background, unless it is given, that is best for all cells
// together. Four candidates at least; more than seven change next to nothing.
CellSets ChooseSets(const Halftone& halftone, const ClosestFit& closest, std::optional<model::C64Colour> background,
                    int candidates);

// Replaces in each cell that own colour by another one with which the picture gains most, and changes the pixels of the
// cell with it. Returns in how many cells.
int ImproveSets(Halftone& halftone, CellSets& cells);

}  // namespace kelvo::convert
