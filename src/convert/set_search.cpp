#include "convert/set_search.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <limits>

#include "convert/cell_trial.h"
#include "convert/parallel.h"

namespace kelvo::convert {
namespace {

constexpr float kInside = 1, kAround = 0.25F, kClosest = 0.75F;  // weights of what speaks for a colour
constexpr int kMargin = 2;                                       // pixels around the cell that speak, too
constexpr int kTrialRounds = 3;

// The colours most used in a halftone in and around `cell`, most used first.
std::vector<int> CandidatesOf(const Halftone& halftone, int cell, ColourSet closest, int count) {
  const CellGrid& grid = halftone.Grid();
  const int left = grid.XOf(cell, 0), top = grid.YOf(cell, 0);
  std::array<float, kColours> uses{};
  for (int y = std::max(top - kMargin, 0); y < std::min(top + CellGrid::kCellHeight + kMargin, grid.Height()); ++y) {
    for (int x = std::max(left - kMargin, 0); x < std::min(left + CellGrid::kCellWidth + kMargin, grid.Width()); ++x) {
      const std::uint8_t colour = halftone.Colours()[static_cast<std::size_t>(y * grid.Width() + x)];
      uses[colour] += grid.CellAt(x, y) == cell ? kInside : kAround;
    }
  }
  std::vector<int> order;
  for (int colour = 0; colour < kColours; ++colour) {
    order.push_back(colour);
    if ((closest & SetOf(colour)) != 0) uses[static_cast<std::size_t>(colour)] += kClosest;
  }
  std::ranges::stable_sort(order, std::ranges::greater(),
                           [&](int colour) { return uses[static_cast<std::size_t>(colour)]; });
  order.resize(static_cast<std::size_t>(count));
  return order;
}

// The best set of a cell for each background, and what it adds to the whole error.
struct BestSets {
  ClosestFit::ByBackground sets{};
  std::array<float, kColours> gains;

  void Consider(ColourSet set, int background, float gain) {
    const auto at = static_cast<std::size_t>(background);
    if (gain >= gains[at]) return;
    gains[at] = gain;
    sets[at] = static_cast<ColourSet>(set | SetOf(background));
  }
};

BestSets BestSetsOf(const Halftone& halftone, int cell, const std::vector<int>& candidates) {
  const CellTrial trial(halftone, cell);
  BestSets best;
  best.gains.fill(std::numeric_limits<float>::max());
  for (unsigned chosen = 0; chosen < 1U << candidates.size(); ++chosen) {
    const int count = std::popcount(chosen);
    if (count != kMostColours && count != kMostColours - 1) continue;
    ColourSet set = 0;
    for (std::size_t index = 0; index < candidates.size(); ++index) {
      if ((chosen >> index & 1) != 0) set |= SetOf(candidates[index]);
    }
    const float gain = trial.Try(set, kTrialRounds).gain;
    for (int background = 0; background < kColours; ++background) {
      // Three colours leave room for any background.
      if (count < kMostColours || (set & SetOf(background)) != 0) best.Consider(set, background, gain);
    }
  }
  return best;
}

// Makes the trial's colours true when they are a gain as the whole picture measures it.
bool Keep(Halftone& halftone, int cell, const CellTrial::Colours& colours) {
  const CellGrid& grid = halftone.Grid();
  CellTrial::Colours before{};
  float gain = 0;
  const auto change = [&](int k, std::uint8_t colour) {
    const int x = grid.XOf(cell, k), y = grid.YOf(cell, k);
    const std::uint8_t shown = halftone.Colours()[grid.PixelOf(cell, k)];
    if (shown == colour) return;
    const ColourScores scores = halftone.ScoresOf(halftone.ChoiceAt(x, y));
    gain += scores[colour] - scores[shown];
    halftone.Change(x, y, colour);
  };
  for (int k = 0; k < CellGrid::kCellPixels; ++k) {
    before[static_cast<std::size_t>(k)] = halftone.Colours()[grid.PixelOf(cell, k)];
    change(k, colours[static_cast<std::size_t>(k)]);
  }
  if (gain < 0) return true;
  for (int k = 0; k < CellGrid::kCellPixels; ++k) change(k, before[static_cast<std::size_t>(k)]);
  return false;
}

bool ImproveSet(Halftone& halftone, int cell, model::C64Colour background, ColourSet& set) {
  const CellTrial trial(halftone, cell);
  CellTrial::Outcome best = trial.Try(set, 1);
  ColourSet best_set = set;
  for (int leaves = 0; leaves < kColours; ++leaves) {
    if ((set & SetOf(leaves)) == 0 || leaves == background.Number()) continue;
    for (int comes = 0; comes < kColours; ++comes) {
      if ((set & SetOf(comes)) != 0) continue;
      const auto other = static_cast<ColourSet>((set & ~SetOf(leaves)) | SetOf(comes));
      const CellTrial::Outcome outcome = trial.Try(other, 1);
      if (outcome.gain >= best.gain) continue;
      best = outcome;
      best_set = other;
    }
  }
  if (best_set == set || !Keep(halftone, cell, best.colours)) return false;
  set = best_set;
  return true;
}

}  // namespace

CellSets ChooseSets(const Halftone& halftone, const ClosestFit& closest, std::optional<model::C64Colour> background,
                    int candidates) {
  const CellGrid& grid = halftone.Grid();
  const auto likely = static_cast<std::size_t>(background.value_or(closest.BestBackground()).Number());
  std::vector<BestSets> cells(static_cast<std::size_t>(grid.Cells()));
  InParallel(grid.cells_high, [&](int row) {
    for (int cell = row * grid.cells_wide; cell < (row + 1) * grid.cells_wide; ++cell) {
      const auto at = static_cast<std::size_t>(cell);
      cells[at] = BestSetsOf(halftone, cell, CandidatesOf(halftone, cell, closest.sets[at][likely], candidates));
    }
  });
  if (!background) {
    std::array<double, kColours> sums{};
    for (const BestSets& best : cells) {
      for (std::size_t colour = 0; colour < sums.size(); ++colour) {
        sums[colour] += static_cast<double>(best.gains[colour]);
      }
    }
    const auto least = std::ranges::min_element(sums) - sums.begin();
    background = model::C64Colour::FromByte(static_cast<std::uint8_t>(least));
  }
  CellSets chosen{*background, {}};
  for (const BestSets& best : cells) chosen.sets.push_back(best.sets[static_cast<std::size_t>(background->Number())]);
  return chosen;
}

int ImproveSets(Halftone& halftone, CellSets& cells) {
  const CellGrid& grid = halftone.Grid();
  std::atomic<int> improved = 0;
  InBands(grid.cells_high, [&](int first, int end) {
    for (int cell = first * grid.cells_wide; cell < end * grid.cells_wide; ++cell) {
      improved += ImproveSet(halftone, cell, cells.background, cells.sets[static_cast<std::size_t>(cell)]) ? 1 : 0;
    }
  });
  return improved;
}

}  // namespace kelvo::convert
