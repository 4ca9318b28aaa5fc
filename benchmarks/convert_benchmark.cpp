// Converting a photo, against the plain search for the best picture without dither: each background with each three
// other colours.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "convert/closest_fit.h"
#include "convert/conversion.h"
#include "goals.h"

namespace kelvo::convert {
namespace {

// Milliseconds are those of two cores at work: none 50, default 400, a preview 100.
const bench::GoalRegistration kGoals{{"ConvertWithoutDither", "PlainSearch", 0.25, 0},
                                     {"ConvertWithoutDither", "", 0, 50'000},
                                     {"ConvertWithDither", "", 0, 400'000},
                                     {"ConvertForPreview", "", 0, 100'000}};

RgbImage Photo() {
  RgbImage image{320, 200, {}};
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      const auto wave = [&](int phase) {
        return static_cast<std::uint32_t>(127 + 100 * std::sin((x + phase * y) / (11.0 + 7 * phase)));
      };
      image.pixels.push_back(0xFF000000U | wave(1) << 16 | wave(2) << 8 | wave(3));
    }
  }
  return image;
}

using CellErrors = std::array<std::array<float, 16>, CellGrid::kCellPixels>;

float PlainError(const CellErrors& errors, const std::array<std::size_t, 4>& set) {
  float sum = 0;
  for (const auto& pixel : errors) {
    sum += std::min({pixel[set[0]], pixel[set[1]], pixel[set[2]], pixel[set[3]]});
  }
  return sum;
}

float PlainSearchOfCell(const CellErrors& errors, std::size_t background) {
  float least = std::numeric_limits<float>::max();
  for (std::size_t first = 0; first < 16; ++first) {
    for (std::size_t second = first + 1; second < 16; ++second) {
      for (std::size_t third = second + 1; third < 16; ++third) {
        if (first == background || second == background || third == background) continue;
        least = std::min(least, PlainError(errors, {background, first, second, third}));
      }
    }
  }
  return least;
}

void PlainSearch(benchmark::State& state) {
  const CellGrid grid;
  const PaletteLight palette(model::kSurfaceColours);
  const RgbImage image = Photo();
  for (auto _ : state) {
    std::vector<Triple> lab;
    for (const Triple& light : SampleLight(image, {0, 0, 320, 200}, grid, 0)) {
      lab.push_back(LabFromLms(LmsFromLinear(light)));
    }
    const ColourErrors errors = ErrorsOf(lab, palette);
    std::array<double, 16> sums{};
    for (int cell = 0; cell < grid.Cells(); ++cell) {
      CellErrors mine;
      for (int k = 0; k < CellGrid::kCellPixels; ++k) mine[static_cast<std::size_t>(k)] = errors[grid.PixelOf(cell, k)];
      for (std::size_t background = 0; background < sums.size(); ++background) {
        sums[background] += static_cast<double>(PlainSearchOfCell(mine, background));
      }
    }
    benchmark::DoNotOptimize(sums);
  }
}
BENCHMARK(PlainSearch)->UseRealTime();

void Converting(benchmark::State& state, const Wishes& wishes) {
  Conversion conversion(Photo(), {});
  app::NoProgress nobody;
  for (auto _ : state) benchmark::DoNotOptimize(conversion.Convert(wishes, nobody));
}

void ConvertWithoutDither(benchmark::State& state) {
  Converting(state, {.grain = kNoGrain});
}
BENCHMARK(ConvertWithoutDither)->UseRealTime();

void ConvertWithDither(benchmark::State& state) {
  Converting(state, {});
}
BENCHMARK(ConvertWithDither)->UseRealTime();

void ConvertForPreview(benchmark::State& state) {
  Converting(state, {.effort = Effort::kQuick});
}
BENCHMARK(ConvertForPreview)->UseRealTime();

}  // namespace
}  // namespace kelvo::convert
