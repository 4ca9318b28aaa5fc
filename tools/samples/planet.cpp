// A ringed planet among stars.
#include <cmath>
#include <optional>

#include "canvas.h"
#include "pictures.h"

namespace kelvo::samples {
namespace {

constexpr double kCentreX = 84, kCentreY = 96, kRadius = 34;
constexpr double kTilt = 0.32, kRingInner = 1.35, kRingOuter = 2.05;
constexpr std::array kSurface{kBlack, kBrown, kOrange, kLightRed, kYellow, kWhite};
constexpr std::array kDust{kBlack, kDarkGray, kGray, kLightGray, kWhite};

// Light from the upper left on the ball, 0..1; nothing outside the ball.
std::optional<double> LightAt(double x, double y) {
  const double square = x * x + y * y;
  if (square >= 1) return std::nullopt;
  const double z = std::sqrt(1 - square);
  return std::max(0.0, x * -0.55 + y * -0.45 + z * 0.7);
}

// How dense the ring is at a distance from the centre, 0 where there is none.
double RingDensity(double distance) {
  if (distance < kRingInner || distance > kRingOuter) return 0;
  const double gap = std::abs(distance - 1.78);
  return gap < 0.04 ? 0.05 : 0.45 + 0.4 * std::sin(distance * 23);
}

Ink StarAt(int x, int y) {
  const double nebula = std::sin(x * 0.05 + std::sin(y * 0.03) * 2) * std::sin(y * 0.035 + 1) * 0.5;
  if (Noise(x, y) > 0.99) return Noise(y, x) > 0.5 ? kWhite : kLightBlue;
  return nebula > 0 ? Dither(x, y, nebula * 0.9, kBlack, kBlue) : kBlack;
}

Ink PixelAt(int x, int y) {
  const double across = (x - kCentreX) * 2 / (kRadius * 2), down = (y - kCentreY) / (kRadius * 2);
  const double turned_x = across * std::cos(kTilt) + down * std::sin(kTilt);
  const double turned_y = -across * std::sin(kTilt) + down * std::cos(kTilt);
  const auto light = LightAt(across, down);
  const double distance = std::hypot(turned_x, turned_y * 3.4);
  const double ring = RingDensity(distance);
  const bool in_front = turned_y > 0 || !light;
  if (ring > 0 && in_front) {
    const bool shaded = !light && across > 0.35 && turned_y < 0;
    return Ramp(x, y, shaded ? ring * 0.3 : ring, kDust);
  }
  if (!light) return StarAt(x, y);
  const double band = std::sin(turned_y * 16 + std::sin(turned_x * 5) * 0.5) * 0.1;
  return Ramp(x, y, *light * 0.95 + band * *light, kSurface);
}

}  // namespace

model::PictureImage DrawPlanet() {
  Canvas canvas(kBlack);
  for (int y = 0; y < 200; ++y) {
    for (int x = 0; x < 160; ++x) canvas.Put(x, y, PixelAt(x, y));
  }
  return canvas.ToPicture(kBlack);
}

}  // namespace kelvo::samples
