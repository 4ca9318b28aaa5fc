#include "convert/cell_trial.h"

#include <algorithm>

#include "convert/eye.h"

namespace kelvo::convert {
namespace {

// The colours of a set side by side; where it has fewer than four, one of them again.
struct SetLight {
  using Lanes = Triple::Lanes;

  SetLight(ColourSet set, const PaletteLight& palette) {
    std::size_t count = 0;
    for (int colour = 0; colour < model::C64Colour::kCount && count < numbers.size(); ++colour) {
      if ((set & SetOf(colour)) != 0) numbers[count++] = static_cast<std::uint8_t>(colour);
    }
    std::fill(numbers.begin() + static_cast<std::ptrdiff_t>(count), numbers.end(), numbers[0]);
    const auto light = [&](std::size_t index) -> const Triple& { return palette.lms[numbers[index]]; };
    x = Lanes{light(0).x, light(1).x, light(2).x, light(3).x};
    y = Lanes{light(0).y, light(1).y, light(2).y, light(3).y};
    z = Lanes{light(0).z, light(1).z, light(2).z, light(3).z};
  }

  // Which of `numbers` has the least score; of equals the first.
  std::size_t Best(const ColourScores& base, const Triple& slope) const {
    const Lanes of_colours{base[numbers[0]], base[numbers[1]], base[numbers[2]], base[numbers[3]]};
    const Lanes scores = of_colours + slope.x * x + slope.y * y + slope.z * z;
    const std::size_t lower = scores[1] < scores[0] ? 1 : 0, upper = scores[3] < scores[2] ? 3 : 2;
    return scores[upper] < scores[lower] ? upper : lower;
  }

  std::array<std::uint8_t, kMostColours> numbers{};
  Lanes x, y, z;
};

}  // namespace

CellTrial::CellTrial(const Halftone& halftone, int cell) : palette_(halftone.Palette()) {
  const CellGrid& grid = halftone.Grid();
  Matrix sum;
  for (std::size_t k = 0; k < colours_.size(); ++k) {
    const int x = grid.XOf(cell, static_cast<int>(k)), y = grid.YOf(cell, static_cast<int>(k));
    const PixelChoice choice = halftone.ChoiceAt(x, y);
    slopes_[k] = choice.slope;
    bases_[k] = choice.base;
    colours_[k] = halftone.Colours()[grid.PixelOf(cell, static_cast<int>(k))];
    sum.Add(halftone.OwnMetric(x, y), 1);
  }
  for (std::size_t colour = 0; colour < effects_.size(); ++colour) {
    effects_[colour] =
        sum.Times(palette_.lms[colour]) * (1 / (static_cast<float>(colours_.size()) * kEye.overlap[0][0]));
  }
}

void CellTrial::Spread(Slopes& slopes, std::size_t pixel, std::uint8_t from, std::uint8_t to) const {
  const Triple effect = effects_[to] - effects_[from];
  const Triple own = slopes[pixel];  // does not follow the pixel's own colour
  for (std::size_t k = 0; k < colours_.size(); ++k) {
    slopes[k] += effect * kEye.overlap[pixel][k];
  }
  slopes[pixel] = own;
}

CellTrial::Outcome CellTrial::Try(ColourSet set, int rounds) const {
  const SetLight light(set, palette_);
  Outcome outcome{0, colours_};
  Slopes slopes = slopes_;
  for (int round = 0, changed = 1; round < rounds && changed > 0; ++round) {
    changed = 0;
    for (std::size_t k = 0; k < colours_.size(); ++k) {
      const std::size_t best = light.Best(bases_[k], slopes[k] * 2);
      std::uint8_t& shown = outcome.colours[k];
      const std::uint8_t colour = light.numbers[best];
      if (colour == shown) continue;
      outcome.gain += ScoreOf(k, slopes[k], colour) - ScoreOf(k, slopes[k], shown);
      Spread(slopes, k, shown, colour);
      shown = colour;
      ++changed;
    }
  }
  return outcome;
}

float CellTrial::ScoreOf(std::size_t pixel, const Triple& slope, std::uint8_t colour) const {
  return bases_[pixel][colour] + 2 * Dot(slope, palette_.lms[colour]);
}

}  // namespace kelvo::convert
