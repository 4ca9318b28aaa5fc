#include "convert/eye.h"

#include <cmath>

namespace kelvo::convert {
namespace {

struct Gaussian {
  double weight, sigma;  // in pixels of the screen, of which a picture's is two wide

  double At(int distance) const { return std::exp(-distance * distance / (2 * sigma * sigma)); }
  // What falls from one wide pixel on another: of each both halves.
  double Across(int distance) const { return At(2 * distance - 1) + 2 * At(2 * distance) + At(2 * distance + 1); }
};

// Found by trial: what a wider eye would gain in colour is lost in structure.
constexpr std::array<Gaussian, 2> kGaussians{{{0.55, 1.5}, {0.45, 0.75}}};

std::size_t Apart(std::size_t a, std::size_t b) {
  return a > b ? a - b : b - a;
}

}  // namespace

Eye::Eye() {
  FillWeights();
  constexpr std::size_t kWidth = CellGrid::kCellWidth;
  for (std::size_t a = 0; a < overlap.size(); ++a) {
    for (std::size_t b = 0; b < overlap.size(); ++b) {
      overlap[a][b] = Overlap(Apart(a % kWidth, b % kWidth), Apart(a / kWidth, b / kWidth));
    }
  }
}

void Eye::FillWeights() {
  for (const Gaussian& gaussian : kGaussians) {
    double across = 0, down = 0;
    for (int x = -kAcross; x <= kAcross; ++x) across += gaussian.Across(x);
    for (int y = -kDown; y <= kDown; ++y) down += gaussian.At(y);
    for (int y = -kDown; y <= kDown; ++y) {
      for (int x = -kAcross; x <= kAcross; ++x) {
        weights[static_cast<std::size_t>(y + kDown)][static_cast<std::size_t>(x + kAcross)] +=
            static_cast<float>(gaussian.weight * gaussian.Across(x) / across * gaussian.At(y) / down);
      }
    }
  }
}

float Eye::Overlap(std::size_t across, std::size_t down) const {
  float sum = 0;
  for (std::size_t y = down; y < kLines; ++y) {
    for (std::size_t x = across; x < kColumns; ++x) sum += weights[y][x] * weights[y - down][x - across];
  }
  return sum;
}

const Eye kEye;

}  // namespace kelvo::convert
