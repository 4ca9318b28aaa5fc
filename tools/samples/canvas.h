// A free canvas of C64 colours, and the way from it to a picture that a C64 can show.
#pragma once

#include <array>

#include "model/picture_image.h"

namespace kelvo::samples {

// The colours by name, for drawing.
enum Ink : int {
  kBlack,
  kWhite,
  kRed,
  kCyan,
  kPurple,
  kGreen,
  kBlue,
  kYellow,
  kOrange,
  kBrown,
  kLightRed,
  kDarkGray,
  kGray,
  kLightGreen,
  kLightBlue,
  kLightGray
};

// Any pixel may have any colour. x counts 0..159, y 0..199; what lies outside is not drawn.
class Canvas {
 public:
  explicit Canvas(Ink paper) { pixels_.fill(paper); }

  void Put(int x, int y, Ink ink);
  Ink At(int x, int y) const { return pixels_[static_cast<std::size_t>(y * model::PictureImage::kWidth + x)]; }
  void Box(int x, int y, int width, int height, Ink ink);

  // The picture nearest to the canvas: each cell keeps the background and the three other colours that most of its
  // pixels have; pixels of further colours take the nearest of these.
  model::PictureImage ToPicture(Ink background) const;

 private:
  std::array<Ink, static_cast<std::size_t>(model::PictureImage::kWidth* model::PictureImage::kHeight)> pixels_{};
};

// One of two colours by an ordered 4 x 4 pattern: `second` covers the part `share` (0..1) of an area.
Ink Dither(int x, int y, double share, Ink first, Ink second);

// A colour of a ramp at `place` (0..1), dithered between its neighbours.
template <std::size_t size>
Ink Ramp(int x, int y, double place, const std::array<Ink, size>& ramp) {
  const double at = place <= 0 ? 0 : place >= 1 ? size - 1 : place * (size - 1);
  const auto index = static_cast<std::size_t>(at);
  return index + 1 >= size ? ramp[size - 1]
                           : Dither(x, y, at - static_cast<double>(index), ramp[index], ramp[index + 1]);
}

// A number 0..1 that depends on the place alone.
double Noise(int x, int y);

}  // namespace kelvo::samples
