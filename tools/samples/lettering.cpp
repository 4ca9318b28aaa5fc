// The program's name, large, over colour bars and stars.
#include <cmath>
#include <string_view>

#include "canvas.h"
#include "pictures.h"

namespace kelvo::samples {
namespace {

// Five letters of 6 x 9 blocks.
constexpr std::array<std::string_view, 9> kName{
    "##..## ###### ##.... ##..## .####.", "##..## ###### ##.... ##..## ######", "##.##. ##.... ##.... ##..## ##..##",
    "####.. ##.... ##.... ##..## ##..##", "###... #####. ##.... ##..## ##..##", "####.. ##.... ##.... ##..## ##..##",
    "##.##. ##.... ##.... .#..#. ##..##", "##..## ###### ###### .####. ######", "##..## ###### ###### ..##.. .####.",
};
constexpr int kBlockWidth = 4, kBlockHeight = 8, kLeft = 12, kTop = 60;

constexpr std::array kMetal{kDarkGray, kGray, kLightGray, kWhite, kWhite, kLightBlue, kBlue, kLightBlue, kCyan};
constexpr std::array kFire{kBlack,  kBrown,    kRed,    kOrange, kLightRed, kYellow, kWhite,
                           kYellow, kLightRed, kOrange, kRed,    kBrown,    kBlack};
constexpr std::array kIce{kBlack, kBlue, kPurple, kLightBlue, kCyan, kWhite, kCyan, kLightBlue, kPurple, kBlue, kBlack};

template <std::size_t size>
void DrawBar(Canvas& canvas, int top, int height, const std::array<Ink, size>& ramp) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < 160; ++x) canvas.Put(x, top + y, Ramp(x, top + y, static_cast<double>(y) / (height - 1), ramp));
  }
}

bool IsBlock(int column, int row) {
  return row >= 0 && row < 9 && column >= 0 && column < 34 &&
         kName[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] == '#';
}

void DrawStars(Canvas& canvas) {
  for (int y = 28; y < 172; ++y) {
    for (int x = 0; x < 160; ++x) {
      if (Noise(x, y) > 0.992) canvas.Put(x, y, std::array{kWhite, kLightGray, kGray}[static_cast<std::size_t>(x % 3)]);
    }
  }
}

void DrawName(Canvas& canvas, int shift_x, int shift_y, bool shadow) {
  for (int y = 0; y < 9 * kBlockHeight; ++y) {
    for (int x = 0; x < 34 * kBlockWidth; ++x) {
      const int column = x / kBlockWidth, row = y / kBlockHeight;
      if (!IsBlock(column, row)) continue;
      const bool edge = y % kBlockHeight == 0 && !IsBlock(column, row - 1);
      const Ink face = edge ? kWhite : Ramp(x, y, y / (9.0 * kBlockHeight), kMetal);
      canvas.Put(kLeft + x + shift_x, kTop + y + shift_y, shadow ? kDarkGray : face);
    }
  }
}

}  // namespace

model::PictureImage DrawLettering() {
  Canvas canvas(kBlack);
  DrawStars(canvas);
  DrawBar(canvas, 2, 25, kFire);
  DrawBar(canvas, 30, 9, kIce);
  DrawBar(canvas, 160, 9, kIce);
  DrawBar(canvas, 172, 25, kFire);
  DrawName(canvas, 2, 5, true);
  DrawName(canvas, 0, 0, false);
  return canvas.ToPicture(kBlack);
}

}  // namespace kelvo::samples
