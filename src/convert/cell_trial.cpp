#include "convert/cell_trial.h"

#include "convert/eye.h"

namespace kelvo::convert {
namespace {

constexpr std::size_t kPixels = CellGrid::kCellPixels;

}  // namespace

CellTrial::CellTrial(const Halftone& halftone, int cell) : palette_(halftone.Palette()) {
  const CellGrid& grid = halftone.Grid();
  Matrix sum;
  for (std::size_t k = 0; k < kPixels; ++k) {
    const int x = grid.XOf(cell, static_cast<int>(k)), y = grid.YOf(cell, static_cast<int>(k));
    const PixelChoice choice = halftone.ChoiceAt(x, y);
    slopes_[k] = choice.slope;
    bases_[k] = choice.base;
    colours_[k] = halftone.Colours()[grid.PixelOf(cell, static_cast<int>(k))];
    const Matrix& own = halftone.OwnMetric(x, y);
    sum.xx += own.xx;
    sum.yy += own.yy;
    sum.zz += own.zz;
    sum.xy += own.xy;
    sum.xz += own.xz;
    sum.yz += own.yz;
  }
  for (std::size_t colour = 0; colour < effects_.size(); ++colour) {
    effects_[colour] = sum.Times(palette_.lms[colour]) * (1 / (static_cast<float>(kPixels) * kEye.overlap[0][0]));
  }
}

void CellTrial::Spread(Slopes& slopes, std::size_t pixel, std::uint8_t from, std::uint8_t to) const {
  const Triple effect = effects_[to] - effects_[from];
  const Triple own = slopes[pixel];  // does not follow the pixel's own colour
  for (std::size_t k = 0; k < kPixels; ++k) {
    slopes[k] += effect * kEye.overlap[pixel][k];
  }
  slopes[pixel] = own;
}

CellTrial::Outcome CellTrial::Try(ColourSet set, int rounds) const {
  std::array<std::uint8_t, model::C64Colour::kCount> members{};
  std::size_t count = 0;
  for (int colour = 0; colour < model::C64Colour::kCount; ++colour) {
    if ((set & SetOf(colour)) != 0) members[count++] = static_cast<std::uint8_t>(colour);
  }
  Outcome outcome{0, colours_};
  Slopes slopes = slopes_;
  for (int round = 0, changed = 1; round < rounds && changed > 0; ++round) {
    changed = 0;
    for (std::size_t k = 0; k < kPixels; ++k) {
      const Triple slope = slopes[k] * 2;
      const auto score = [&](std::uint8_t colour) { return bases_[k][colour] + Dot(slope, palette_.lms[colour]); };
      std::uint8_t best = members[0];
      float least = score(best);
      for (std::size_t index = 1; index < count; ++index) {
        const float other = score(members[index]);
        if (other >= least) continue;
        least = other;
        best = members[index];
      }
      std::uint8_t& shown = outcome.colours[k];
      if (best == shown) continue;
      outcome.gain += least - score(shown);
      Spread(slopes, k, shown, best);
      shown = best;
      ++changed;
    }
  }
  return outcome;
}

}  // namespace kelvo::convert
