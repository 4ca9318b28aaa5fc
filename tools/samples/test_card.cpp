// A test card: every colour, every bit pair, a circle and gradients.
#include <cmath>

#include "canvas.h"
#include "pictures.h"

namespace kelvo::samples {
namespace {

constexpr std::array kGrays{kBlack, kDarkGray, kGray, kLightGray, kWhite};
constexpr std::array kBlues{kBlack, kBlue, kPurple, kLightBlue, kCyan, kWhite};
constexpr std::array kWarm{kBlack, kBrown, kOrange, kLightRed, kYellow, kWhite};
constexpr std::array kGreens{kBlack, kBrown, kGreen, kLightGreen, kWhite};

// Ordered by brightness, so that neighbours differ clearly in hue but little in light.
constexpr std::array kBars{kWhite, kYellow, kLightGreen, kCyan, kLightGray, kGreen, kLightRed, kLightBlue,
                           kGray,  kOrange, kPurple,     kRed,  kDarkGray,  kBlue,  kBrown,    kBlack};

void DrawGrid(Canvas& canvas) {
  for (int y = 0; y < 200; ++y) {
    for (int x = 0; x < 160; ++x) {
      const bool line = x % 8 == 0 || y % 16 == 0;
      canvas.Put(x, y, line ? kLightGray : kDarkGray);
    }
  }
  for (int x = 0; x < 160; x += 4) {
    canvas.Box(x, 0, 4, 4, x / 4 % 2 == 0 ? kWhite : kBlack);
    canvas.Box(x, 196, 4, 4, x / 4 % 2 == 0 ? kBlack : kWhite);
  }
  for (int y = 0; y < 200; y += 8) {
    canvas.Box(0, y, 2, 8, y / 8 % 2 == 0 ? kWhite : kBlack);
    canvas.Box(158, y, 2, 8, y / 8 % 2 == 0 ? kBlack : kWhite);
  }
}

template <std::size_t size>
void DrawGradient(Canvas& canvas, int top, const std::array<Ink, size>& ramp) {
  for (int y = top; y < top + 16; ++y) {
    for (int x = 32; x < 128; ++x) canvas.Put(x, y, Ramp(x, y, (x - 32) / 95.0, ramp));
  }
}

// Four cells of bit-pair patterns: a pixel of each slot beside each other slot.
void DrawPairs(Canvas& canvas, int left, int top, const std::array<Ink, 4>& slots) {
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) {
      canvas.Put(left + x, top + y, slots[static_cast<std::size_t>((x + (x / 4 == 0 ? y : 3 * y)) % 4)]);
    }
  }
}

void DrawCircle(Canvas& canvas) {
  for (int degree = 0; degree < 1440; ++degree) {
    const double angle = degree * 3.14159265 / 720;
    for (const double radius : {95.0, 94.0, 93.0}) {
      canvas.Put(80 + static_cast<int>(std::lround(std::cos(angle) * radius / 2)),
                 100 + static_cast<int>(std::lround(std::sin(angle) * radius)), kWhite);
    }
  }
}

}  // namespace

model::PictureImage DrawTestCard() {
  Canvas canvas(kDarkGray);
  DrawGrid(canvas);
  DrawCircle(canvas);
  for (std::size_t bar = 0; bar < kBars.size(); ++bar) {
    canvas.Box(48 + static_cast<int>(bar) * 4, 24, 4, 40, kBars[bar]);
  }
  DrawGradient(canvas, 72, kGrays);
  DrawGradient(canvas, 88, kBlues);
  DrawGradient(canvas, 104, kWarm);
  DrawGradient(canvas, 120, kGreens);
  int left = 48;
  for (const std::array<Ink, 4>& slots : {std::array{kDarkGray, kRed, kCyan, kYellow},
                                          {kDarkGray, kPurple, kGreen, kWhite},
                                          {kDarkGray, kBlue, kOrange, kLightGray},
                                          {kDarkGray, kBrown, kLightRed, kLightBlue}}) {
    canvas.Box(left, 144, 16, 24, kDarkGray);
    DrawPairs(canvas, left + 4, 144, slots);
    DrawPairs(canvas, left + 4, 152, slots);
    DrawPairs(canvas, left + 4, 160, slots);
    left += 16;
  }
  return canvas.ToPicture(kDarkGray);
}

}  // namespace kelvo::samples
