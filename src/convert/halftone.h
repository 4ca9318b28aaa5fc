// A picture under the eye of the one who looks at it: what each pixel can do for the whole.
//
// The eye blurs picture and source alike; what it still tells apart is the error. It is measured by a quadratic form
// that follows the distance in OKLab: with r and t as the blurred picture and source, OKLab's cube roots are replaced
// by their exact secants between r and t, and the square of the distance is divided by the distance, so that the sum
// follows the mean distance. The form is taken anew (Weigh) as the picture changes. To it comes, for each pixel, how
// much its colour itself is off: that keeps the grain fine.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "convert/colour_map.h"
#include "convert/colour_space.h"
#include "convert/preparation.h"

namespace kelvo::convert {

// Symmetric; its columns.
struct Matrix {
  Triple x, y, z;

  Triple Times(const Triple& by) const { return x * by.x + y * by.y + z * by.z; }

  void Add(const Matrix& other, float weight) {
    x += other.x * weight;
    y += other.y * weight;
    z += other.z * weight;
  }
};

using ColourScores = std::array<float, model::C64Colour::kCount>;

// How the whole depends on the colour of one pixel. The score of a colour is base + 2 * (slope . lms): the difference
// of two scores is what the change gains, and the least is best. The slope does not depend on the pixel's own colour.
struct PixelChoice {
  Triple slope;
  ColourScores base{};
};

class Halftone {
 public:
  // `grain` weighs what a pixel's own lightness is off: the more, the finer. Begins with the closest of all colours.
  Halftone(const CellGrid& grid, const LightMap& light, const PaletteLight& palette, float grain);

  const CellGrid& Grid() const { return grid_; }
  const PaletteLight& Palette() const { return palette_; }
  const std::vector<std::uint8_t>& Colours() const { return colours_; }

  // Takes the measure of the error anew.
  void Weigh();

  // Lets each pixel once take the colour of its cell's set that is best for the whole; returns how many changed.
  int Sweep(std::span<const ColourSet> sets);

  PixelChoice ChoiceAt(int x, int y) const;
  ColourScores ScoresOf(const PixelChoice& choice) const;
  // How a change of the pixel acts on itself.
  const Matrix& OwnMetric(int x, int y) const { return own_[PixelAt(x, y)]; }
  void Change(int x, int y, std::uint8_t colour);

 private:
  // By colour number, the products of its LMS: what a quadratic form is made of.
  struct Products {
    ColourScores x, y, z, xx, yy, zz, xy, xz, yz;
  };

  std::size_t PixelAt(int x, int y) const { return static_cast<std::size_t>(y * grid_.Width() + x); }
  std::size_t PaddedAt(int x, int y) const;
  std::vector<Triple> Blurred(const std::vector<Triple>& padded) const;
  std::vector<Triple> Padded(const std::vector<Triple>& values, bool continued) const;
  Matrix MetricAt(std::size_t pixel, const Triple& error) const;
  Matrix OwnMetricAt(int x, int y) const;
  int SweepRow(int y, std::span<const ColourSet> sets);

  CellGrid grid_;
  PaletteLight palette_;
  Products products_;
  int stride_;                           // of the padded arrays, whose frame stays 0: no pixel's window is cut off
  std::vector<Triple> source_, target_;  // LMS of the source, and the same as the eye sees it
  std::vector<ColourScores> terms_;      // what each pixel's own colour costs
  std::vector<std::uint8_t> colours_;
  std::vector<Triple> pull_;    // padded: the metric times the error (blurred picture minus target), always up to date
  std::vector<Matrix> metric_;  // padded
  std::vector<Matrix> own_;
  bool weighed_ = false;
};

}  // namespace kelvo::convert
