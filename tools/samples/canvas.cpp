#include "canvas.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "model/bit_pair.h"
#include "model/palette.h"
#include "model/pixel_place.h"

namespace kelvo::samples {
namespace {

using model::PictureImage;

int Distance(Ink a, Ink b) {
  const model::PaletteEntry &p = model::kPalette[a], &q = model::kPalette[b];
  const int red = p.red - q.red, green = p.green - q.green, blue = p.blue - q.blue;
  return 3 * red * red + 6 * green * green + 2 * blue * blue;
}

// The cell's colours by slot, %00 first: the background, then its most frequent others.
std::array<Ink, 4> ColoursOfCell(const Canvas& canvas, int column, int row, Ink background) {
  std::array<int, 16> counts{};
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 4; ++x) ++counts[canvas.At(column * 4 + x, row * 8 + y)];
  }
  counts[background] = 0;
  std::array<Ink, 4> colours{background, background, background, background};
  for (std::size_t slot = 1; slot < colours.size(); ++slot) {
    const auto most = std::max_element(counts.begin(), counts.end());
    if (*most == 0) break;
    colours[slot] = static_cast<Ink>(most - counts.begin());
    *most = 0;
  }
  return colours;
}

model::BitPair NearestSlot(Ink ink, const std::array<Ink, 4>& colours) {
  const auto nearest = std::min_element(colours.begin(), colours.end(),
                                        [ink](Ink a, Ink b) { return Distance(ink, a) < Distance(ink, b); });
  return static_cast<model::BitPair>(nearest - colours.begin());
}

}  // namespace

void Canvas::Put(int x, int y, Ink ink) {
  if (x < 0 || x >= PictureImage::kWidth || y < 0 || y >= PictureImage::kHeight) return;
  pixels_[static_cast<std::size_t>(y * PictureImage::kWidth + x)] = ink;
}

void Canvas::Box(int x, int y, int width, int height, Ink ink) {
  for (int row = y; row < y + height; ++row) {
    for (int column = x; column < x + width; ++column) Put(column, row, ink);
  }
}

PictureImage Canvas::ToPicture(Ink background) const {
  PictureImage picture{.BackgroundColour = *model::C64Colour::FromNumber(background)};
  for (int cell = 1; cell <= PictureImage::kCells; ++cell) {
    const int column = (cell - 1) % PictureImage::kCellsWide, row = (cell - 1) / PictureImage::kCellsWide;
    const std::array<Ink, 4> colours = ColoursOfCell(*this, column, row, background);
    const auto index = static_cast<std::size_t>(cell);
    picture.ScreenMemory[index] = static_cast<std::uint8_t>(colours[1] << 4 | colours[2]);
    picture.ColourMemory[index] = static_cast<std::uint8_t>(colours[3]);
    for (int y = row * 8; y < row * 8 + 8; ++y) {
      for (int x = column * 4; x < column * 4 + 4; ++x) {
        const model::PixelPlace place = model::LookUpPixel(x + 1, y + 1);
        std::uint8_t& byte = picture.Bitmap[static_cast<std::size_t>(place.byte)];
        byte = model::WithPairAt(byte, place.position, NearestSlot(At(x, y), colours));
      }
    }
  }
  return picture;
}

Ink Dither(int x, int y, double share, Ink first, Ink second) {
  constexpr std::array<int, 16> kBayer{0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5};
  const double threshold = (kBayer[static_cast<std::size_t>(y % 4 * 4 + x % 4)] + 0.5) / 16;
  return share > threshold ? second : first;
}

double Noise(int x, int y) {
  std::uint32_t mixed = static_cast<std::uint32_t>(x) * 374761393U + static_cast<std::uint32_t>(y) * 668265263U;
  mixed = (mixed ^ mixed >> 13) * 1274126177U;
  return static_cast<double>((mixed ^ mixed >> 16) & 0xFFFF) / 65536.0;
}

}  // namespace kelvo::samples
