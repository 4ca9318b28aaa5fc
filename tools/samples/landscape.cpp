// A lake between mountains after sunset.
#include <cmath>

#include "canvas.h"
#include "pictures.h"

namespace kelvo::samples {
namespace {

constexpr int kShore = 132;
constexpr double kSunX = 104, kSunY = 104, kSunRadius = 15;
constexpr std::array kSky{kBlack, kBlue, kBlue, kPurple, kLightRed, kOrange, kYellow};

Ink SkyAt(int x, int y) {
  if (y < 56 && Noise(x, y) > 0.988 - y * 0.0001) return y % 3 == 0 ? kWhite : kLightBlue;
  const double across = (x - kSunX), down = (y - kSunY) / 2;
  const double from_sun = std::sqrt(across * across + down * down);
  if (from_sun < kSunRadius) return from_sun < kSunRadius - 3 ? (y > 100 ? kYellow : kWhite) : kYellow;
  const double glow = std::max(0.0, 1 - from_sun / 70) * 0.16;
  return Ramp(x, y, y / 150.0 + glow, kSky);
}

// The height of a mountain chain over the shore at x, from a few waves and some roughness.
double Ridge(int x, double base, double height, double phase) {
  const double wave = std::sin(x * 0.045 + phase) * 0.6 + std::sin(x * 0.11 + phase * 2.3) * 0.3;
  const double teeth =
      std::abs(std::sin(x * 0.21 + phase * 5)) * 0.18 + Noise(x / 2, static_cast<int>(phase * 10)) * 0.06;
  return base + height * (wave * 0.5 + teeth);
}

void DrawFarRidge(Canvas& canvas) {
  for (int x = 0; x < 160; ++x) {
    const int top = kShore - static_cast<int>(Ridge(x, 30, 26, 1.7));
    for (int y = top; y < kShore; ++y) {
      const bool lit = Ridge(x + 2, 30, 26, 1.7) < Ridge(x, 30, 26, 1.7) && y < top + 12;
      canvas.Put(x, y, Dither(x, y, (y - top) / 34.0, lit ? kLightRed : kPurple, lit ? kPurple : kDarkGray));
    }
  }
}

void DrawNearRidge(Canvas& canvas) {
  for (int x = 0; x < 160; ++x) {
    const int top = kShore - static_cast<int>(Ridge(x, 12, 22, 4.1));
    for (int y = top; y < kShore; ++y) canvas.Put(x, y, Dither(x, y, (y - top) / 16.0, kDarkGray, kBlack));
  }
}

// The lake shows what stands above it, shifted a little by waves and darker towards the viewer.
void DrawLake(Canvas& canvas) {
  for (int y = kShore; y < 200; ++y) {
    for (int x = 0; x < 160; ++x) {
      const int depth = y - kShore;
      const int shift = static_cast<int>(std::sin(y * 0.9 + x * 0.05) * (1 + depth / 14.0));
      const int from_y = kShore - 1 - depth * 3 / 2;
      const int from_x = std::min(159, std::max(0, x + shift));
      const Ink mirrored = canvas.At(from_x, std::max(0, from_y));
      const bool ripple = depth % 5 == 0 && Noise(x / 5, y) > 0.55;
      canvas.Put(x, y, ripple ? kBlue : Dither(x, y, depth / 100.0, mirrored, kBlack));
    }
  }
  for (int y = kShore + 2; y < 190; y += 2) {
    const int half = static_cast<int>(3 + Noise(y, 7) * 9);
    for (int x = -half; x <= half; ++x) {
      if (Noise(x, y) > 0.35) canvas.Put(static_cast<int>(kSunX) + x, y, y < 155 ? kYellow : kOrange);
    }
  }
}

void DrawPine(Canvas& canvas, int x, int foot, int height) {
  for (int row = 0; row < height; ++row) {
    const int half = row * 5 / height * (row % 6 + 4) / 9;
    for (int side = -half; side <= half; ++side) canvas.Put(x + side, foot - height + row, kBlack);
    canvas.Put(x, foot - height + row, kBlack);
  }
}

void DrawForeground(Canvas& canvas) {
  for (int x = 0; x < 160; ++x) {
    const int top =
        190 - static_cast<int>(10 * std::exp(-x / 22.0) + 14 * std::exp((x - 160) / 16.0) + Noise(x, 3) * 3);
    for (int y = top; y < 200; ++y) canvas.Put(x, y, kBlack);
  }
  for (const auto& [x, foot, height] : {std::array{6, 186, 66},
                                        {15, 188, 48},
                                        {24, 192, 34},
                                        {151, 184, 78},
                                        {141, 188, 52},
                                        {157, 180, 58},
                                        {133, 193, 30}}) {
    DrawPine(canvas, x, foot, height);
  }
}

}  // namespace

model::PictureImage DrawLandscape() {
  Canvas canvas(kBlack);
  for (int y = 0; y < kShore; ++y) {
    for (int x = 0; x < 160; ++x) canvas.Put(x, y, SkyAt(x, y));
  }
  DrawFarRidge(canvas);
  DrawNearRidge(canvas);
  DrawLake(canvas);
  DrawForeground(canvas);
  return canvas.ToPicture(kBlack);
}

}  // namespace kelvo::samples
