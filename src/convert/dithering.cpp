#include "convert/dithering.h"

#include "convert/halftone.h"
#include "convert/set_search.h"

namespace kelvo::convert {

ColourMap DrawDithered(const CellGrid& grid, const LightMap& light, const PaletteLight& palette,
                       const ClosestFit& closest, float grain, std::optional<model::C64Colour> background,
                       const SearchEffort& effort, const std::function<void()>& step) {
  Halftone halftone(grid, light, palette, grain);
  halftone.Weigh();
  const std::vector<ColourSet> all(static_cast<std::size_t>(grid.Cells()), kAllColours);
  for (int sweep = 0; sweep < effort.free_sweeps; ++sweep) halftone.Sweep(all);
  step();
  CellSets cells = ChooseSets(halftone, closest, background, effort.candidates);
  step();
  const auto sweep_twice = [&] {
    halftone.Sweep(cells.sets);
    halftone.Sweep(cells.sets);
  };
  sweep_twice();
  for (int round = 0, improved = 1; round < effort.rounds && improved > 0; ++round) {
    halftone.Weigh();
    improved = ImproveSets(halftone, cells);
    sweep_twice();
    step();
  }
  halftone.Weigh();
  for (int sweep = 0; sweep < effort.last_sweeps && halftone.Sweep(cells.sets) > 0;) ++sweep;
  step();
  return {grid, cells.background, halftone.Colours()};
}

}  // namespace kelvo::convert
