#include "convert/closest_fit.h"

#include <algorithm>
#include <limits>

#include "convert/parallel.h"

namespace kelvo::convert {
namespace {

constexpr std::size_t kPixels = CellGrid::kCellPixels;
using PixelErrors = std::array<float, kPixels>;

PixelErrors Least(const PixelErrors& a, const PixelErrors& b) {
  PixelErrors least;
  for (std::size_t k = 0; k < kPixels; ++k) least[k] = std::min(a[k], b[k]);
  return least;
}

float SumOfLeast(const PixelErrors& a, const PixelErrors& b) {
  // Four sums side by side, of which a compiler makes one.
  std::array<float, 4> sums{};
  for (std::size_t k = 0; k < kPixels; k += sums.size()) {
    for (std::size_t lane = 0; lane < sums.size(); ++lane) sums[lane] += std::min(a[k + lane], b[k + lane]);
  }
  return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

// Two colours, and for each pixel the error of the closer one.
struct Pair {
  int first, second;
  PixelErrors errors;
};

struct CellFit {
  ClosestFit::ByBackground sets{};
  std::array<float, kColours> errors;

  void Consider(const Pair& a, const Pair& b) {
    const float error = SumOfLeast(a.errors, b.errors);
    const unsigned set = SetOf(a.first) | SetOf(a.second) | SetOf(b.first) | SetOf(b.second);
    for (const int member : {a.first, a.second, b.first, b.second}) {
      const auto background = static_cast<std::size_t>(member);
      if (error >= errors[background]) continue;
      errors[background] = error;
      sets[background] = static_cast<ColourSet>(set);
    }
  }
};

CellFit FitCell(const std::array<PixelErrors, kColours>& errors) {
  std::vector<Pair> pairs;  // by their second colour
  pairs.reserve(kColours * (kColours - 1) / 2);
  for (int second = 1; second < kColours; ++second) {
    for (int first = 0; first < second; ++first) {
      pairs.push_back(
          {first, second, Least(errors[static_cast<std::size_t>(first)], errors[static_cast<std::size_t>(second)])});
    }
  }
  CellFit fit;
  fit.errors.fill(std::numeric_limits<float>::max());
  for (const Pair& upper : pairs) {
    for (const Pair& lower : pairs) {
      if (lower.second >= upper.first) break;
      fit.Consider(lower, upper);
    }
  }
  return fit;
}

}  // namespace

ColourErrors ErrorsOf(const std::vector<Triple>& lab, const PaletteLight& palette) {
  ColourErrors errors(lab.size());
  for (std::size_t pixel = 0; pixel < lab.size(); ++pixel) {
    for (std::size_t colour = 0; colour < palette.lab.size(); ++colour) {
      errors[pixel][colour] = Square(lab[pixel] - palette.lab[colour]);
    }
  }
  return errors;
}

model::C64Colour ClosestFit::BestBackground() const {
  const auto best = std::min_element(errors.begin(), errors.end()) - errors.begin();
  return model::C64Colour::FromByte(static_cast<std::uint8_t>(best));
}

ClosestFit FitClosest(const CellGrid& grid, const ColourErrors& errors) {
  std::vector<CellFit> cells(static_cast<std::size_t>(grid.Cells()));
  InParallel(grid.cells_high, [&](int row) {
    for (int cell = row * grid.cells_wide; cell < (row + 1) * grid.cells_wide; ++cell) {
      std::array<PixelErrors, kColours> by_colour;
      for (int k = 0; k < CellGrid::kCellPixels; ++k) {
        const auto& pixel = errors[grid.PixelOf(cell, k)];
        for (std::size_t colour = 0; colour < by_colour.size(); ++colour) {
          by_colour[colour][static_cast<std::size_t>(k)] = pixel[colour];
        }
      }
      cells[static_cast<std::size_t>(cell)] = FitCell(by_colour);
    }
  });
  ClosestFit fit{std::vector<ClosestFit::ByBackground>(cells.size()), {}};
  for (std::size_t cell = 0; cell < cells.size(); ++cell) {
    fit.sets[cell] = cells[cell].sets;
    for (std::size_t colour = 0; colour < fit.errors.size(); ++colour) {
      fit.errors[colour] += static_cast<double>(cells[cell].errors[colour]);
    }
  }
  return fit;
}

ColourMap DrawClosest(const CellGrid& grid, const ColourErrors& errors, const ClosestFit& fit,
                      model::C64Colour background) {
  ColourMap map{grid, background, std::vector<std::uint8_t>(grid.Pixels())};
  for (int cell = 0; cell < grid.Cells(); ++cell) {
    const ColourSet set = fit.sets[static_cast<std::size_t>(cell)][static_cast<std::size_t>(background.Number())];
    for (int k = 0; k < CellGrid::kCellPixels; ++k) {
      const std::size_t pixel = grid.PixelOf(cell, k);
      map.colours[pixel] = ClosestOf(errors[pixel], set);
    }
  }
  return map;
}

std::uint8_t ClosestOf(const std::array<float, kColours>& errors, ColourSet set) {
  int closest = -1;
  for (int colour = 0; colour < kColours; ++colour) {
    if ((set & SetOf(colour)) == 0) continue;
    if (closest < 0 || errors[static_cast<std::size_t>(colour)] < errors[static_cast<std::size_t>(closest)]) {
      closest = colour;
    }
  }
  return static_cast<std::uint8_t>(closest);
}

}  // namespace kelvo::convert
