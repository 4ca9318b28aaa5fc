#include "convert/halftone.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>

#include "convert/closest_fit.h"
#include "convert/eye.h"
#include "convert/parallel.h"

namespace kelvo::convert {
namespace {

constexpr float kColourTerm = 0.02F;     // weighs a pixel's own colour beside its lightness
constexpr float kSharpened = 0.7F;       // of the lightness that stands out: grain would drown it
constexpr float kDarkest = 0.01F;        // bounds the weight of what is near black
constexpr float kLeastDistance = 0.03F;  // bounds the weight of what is nearly right
constexpr float kFirstWeight = 20;       // before there is a picture that can be measured
constexpr float kWorthIt = 1e-7F;        // a gain below this is the noise of the arithmetic

float Secant(float root_of_r, float root_of_t) {
  return 1 / (root_of_r * root_of_r + root_of_r * root_of_t + root_of_t * root_of_t + kDarkest);
}

// weight * D * (A^T A) * D, A being the matrix from cube roots to OKLab.
Matrix FormOf(const Triple& d, float weight) {
  const auto product = [](std::size_t i, std::size_t j) {
    return kLabRows[0][i] * kLabRows[0][j] + kLabRows[1][i] * kLabRows[1][j] + kLabRows[2][i] * kLabRows[2][j];
  };
  static const Matrix products{{product(0, 0), product(1, 0), product(2, 0)},
                               {product(0, 1), product(1, 1), product(2, 1)},
                               {product(0, 2), product(1, 2), product(2, 2)}};
  const auto column = [&](const Triple& of, float own) {
    return Triple{of.x * d.x, of.y * d.y, of.z * d.z} * (weight * own);
  };
  return {column(products.x, d.x), column(products.y, d.y), column(products.z, d.z)};
}

}  // namespace

Halftone::Halftone(const CellGrid& grid, const LightMap& light, const PaletteLight& palette, float grain)
    : grid_(grid), palette_(palette), products_{}, stride_(grid.Width() + 2 * Eye::kAcross) {
  for (std::size_t colour = 0; colour < palette_.lms.size(); ++colour) {
    const Triple& lms = palette.lms[colour];
    products_.x[colour] = lms.x;
    products_.y[colour] = lms.y;
    products_.z[colour] = lms.z;
    products_.xx[colour] = lms.x * lms.x;
    products_.yy[colour] = lms.y * lms.y;
    products_.zz[colour] = lms.z * lms.z;
    products_.xy[colour] = 2 * lms.x * lms.y;
    products_.xz[colour] = 2 * lms.x * lms.z;
    products_.yz[colour] = 2 * lms.y * lms.z;
  }
  source_.reserve(light.size());
  std::vector<Triple> lab;
  for (const Triple& rgb : light) {
    source_.push_back(LmsFromLinear(rgb));
    lab.push_back(LabFromLms(source_.back()));
  }
  for (const auto& errors : ErrorsOf(lab, palette)) colours_.push_back(ClosestOf(errors, kAllColours));
  target_ = Blurred(Padded(source_, true));
  terms_.resize(lab.size());
  for (std::size_t pixel = 0; pixel < lab.size(); ++pixel) {
    const Triple wanted = lab[pixel] + Triple{kSharpened * (lab[pixel].x - LabFromLms(target_[pixel]).x)};
    for (std::size_t colour = 0; colour < palette_.lms.size(); ++colour) {
      const Triple off = palette.lab[colour] - wanted;
      terms_[pixel][colour] = grain * off.x * off.x + kColourTerm * (off.y * off.y + off.z * off.z);
    }
  }
  const std::size_t padded =
      static_cast<std::size_t>(stride_) * static_cast<std::size_t>(grid.Height() + 2 * Eye::kDown);
  pull_.resize(padded);
  metric_.resize(padded);
  own_.resize(grid.Pixels());
}

std::size_t Halftone::PaddedAt(int x, int y) const {
  return static_cast<std::size_t>((y + Eye::kDown) * stride_ + x + Eye::kAcross);
}

std::vector<Triple> Halftone::Padded(const std::vector<Triple>& values, bool continued) const {
  std::vector<Triple> padded;
  for (int y = -Eye::kDown; y < grid_.Height() + Eye::kDown; ++y) {
    for (int x = -Eye::kAcross; x < grid_.Width() + Eye::kAcross; ++x) {
      const int inner_x = std::clamp(x, 0, grid_.Width() - 1), inner_y = std::clamp(y, 0, grid_.Height() - 1);
      const bool inside = x == inner_x && y == inner_y;
      padded.push_back(inside || continued ? values[PixelAt(inner_x, inner_y)] : Triple{});
    }
  }
  return padded;
}

std::vector<Triple> Halftone::Blurred(const std::vector<Triple>& padded) const {
  std::vector<Triple> blurred(grid_.Pixels());
  InParallel(grid_.Height(), [&](int y) {
    for (int x = 0; x < grid_.Width(); ++x) {
      Triple sum;
      for (std::size_t line = 0; line < Eye::kLines; ++line) {
        const Triple* row = &padded[PaddedAt(x - Eye::kAcross, y - Eye::kDown + static_cast<int>(line))];
        for (std::size_t column = 0; column < Eye::kColumns; ++column) sum += row[column] * kEye.weights[line][column];
      }
      blurred[PixelAt(x, y)] = sum;
    }
  });
  return blurred;
}

void Halftone::Weigh() {
  std::vector<Triple> difference(source_.size());
  for (std::size_t pixel = 0; pixel < source_.size(); ++pixel) {
    difference[pixel] = palette_.lms[colours_[pixel]] - source_[pixel];
  }
  const std::vector<Triple> blurred = Blurred(Padded(difference, false));
  InParallel(grid_.Height(), [&](int y) {
    for (int x = 0; x < grid_.Width(); ++x) {
      const std::size_t pixel = PixelAt(x, y), padded = PaddedAt(x, y);
      metric_[padded] = MetricAt(pixel, blurred[pixel]);
      pull_[padded] = metric_[padded].Times(blurred[pixel]);
    }
  });
  InParallel(grid_.Height(), [&](int y) {
    for (int x = 0; x < grid_.Width(); ++x) own_[PixelAt(x, y)] = OwnMetricAt(x, y);
  });
  weighed_ = true;
}

Matrix Halftone::MetricAt(std::size_t pixel, const Triple& error) const {
  const Triple& t = target_[pixel];
  const Triple sum = t + error;
  const Triple root_of_t = CubeRoots(t);
  // The first picture is not yet one to be measured by.
  const Triple root_of_r =
      weighed_ ? CubeRoots({std::max(sum.x, 0.0F), std::max(sum.y, 0.0F), std::max(sum.z, 0.0F)}) : root_of_t;
  const float distance = std::sqrt(Square(LabFromCubeRoots(root_of_r - root_of_t)));
  return FormOf({Secant(root_of_r.x, root_of_t.x), Secant(root_of_r.y, root_of_t.y), Secant(root_of_r.z, root_of_t.z)},
                weighed_ ? 1 / (distance + kLeastDistance) : kFirstWeight);
}

Matrix Halftone::OwnMetricAt(int x, int y) const {
  Matrix sum;
  for (std::size_t line = 0; line < Eye::kLines; ++line) {
    const Matrix* row = &metric_[PaddedAt(x - Eye::kAcross, y - Eye::kDown + static_cast<int>(line))];
    for (std::size_t column = 0; column < Eye::kColumns; ++column) {
      sum.Add(row[column], kEye.weights[line][column] * kEye.weights[line][column]);
    }
  }
  return sum;
}

PixelChoice Halftone::ChoiceAt(int x, int y) const {
  Triple pull;
  for (std::size_t line = 0; line < Eye::kLines; ++line) {
    const Triple* row = &pull_[PaddedAt(x - Eye::kAcross, y - Eye::kDown + static_cast<int>(line))];
    for (std::size_t column = 0; column < Eye::kColumns; ++column) pull += row[column] * kEye.weights[line][column];
  }
  const std::size_t pixel = PixelAt(x, y);
  const Matrix& own = own_[pixel];
  PixelChoice choice{pull - own.Times(palette_.lms[colours_[pixel]]), terms_[pixel]};
  for (std::size_t colour = 0; colour < palette_.lms.size(); ++colour) {
    choice.base[colour] += own.x.x * products_.xx[colour] + own.y.y * products_.yy[colour] +
                           own.z.z * products_.zz[colour] + own.x.y * products_.xy[colour] +
                           own.x.z * products_.xz[colour] + own.y.z * products_.yz[colour];
  }
  return choice;
}

ColourScores Halftone::ScoresOf(const PixelChoice& choice) const {
  ColourScores scores;
  const Triple slope = choice.slope * 2;
  for (std::size_t colour = 0; colour < palette_.lms.size(); ++colour) {
    scores[colour] = choice.base[colour] + slope.x * products_.x[colour] + slope.y * products_.y[colour] +
                     slope.z * products_.z[colour];
  }
  return scores;
}

void Halftone::Change(int x, int y, std::uint8_t colour) {
  std::uint8_t& shown = colours_[PixelAt(x, y)];
  const Triple change = palette_.lms[colour] - palette_.lms[shown];
  shown = colour;
  for (std::size_t line = 0; line < Eye::kLines; ++line) {
    const std::size_t first = PaddedAt(x - Eye::kAcross, y - Eye::kDown + static_cast<int>(line));
    for (std::size_t column = 0; column < Eye::kColumns; ++column) {
      pull_[first + column] += metric_[first + column].Times(change) * kEye.weights[line][column];
    }
  }
}

int Halftone::Sweep(std::span<const ColourSet> sets) {
  std::atomic<int> changed = 0;
  InBands(grid_.cells_high, [&](int first, int end) {
    for (int y = first * CellGrid::kCellHeight; y < end * CellGrid::kCellHeight; ++y) changed += SweepRow(y, sets);
  });
  return changed;
}

// Back and forth, line by line: no grain runs in one direction.
int Halftone::SweepRow(int y, std::span<const ColourSet> sets) {
  int changed = 0;
  for (int step = 0; step < grid_.Width(); ++step) {
    const int x = y % 2 == 0 ? step : grid_.Width() - 1 - step;
    const ColourSet set = sets[static_cast<std::size_t>(grid_.CellAt(x, y))];
    const ColourScores scores = ScoresOf(ChoiceAt(x, y));
    const std::uint8_t shown = colours_[PixelAt(x, y)], best = ClosestOf(scores, set);
    const bool stays = (set & SetOf(shown)) != 0 && scores[best] >= scores[shown] - kWorthIt;
    if (best == shown || stays) continue;
    Change(x, y, best);
    ++changed;
  }
  return changed;
}

}  // namespace kelvo::convert
