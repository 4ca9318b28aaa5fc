#include "optimise/background_colour.h"

#include <bit>
#include <cstdint>

#include "model/pixel_colour.h"

namespace kelvo::optimise {
namespace {

using model::BitPair;

// Bit 0 of each pair of `byte` that equals `pair`.
constexpr unsigned PairsEqual(unsigned byte, BitPair pair) {
  const unsigned high = byte >> 1, low = byte;
  const unsigned wanted_high = pair == BitPair::k10 || pair == BitPair::k11 ? high : ~high;
  const unsigned wanted_low = pair == BitPair::k01 || pair == BitPair::k11 ? low : ~low;
  return wanted_high & wanted_low & 0x55U;
}

constexpr std::uint8_t WithoutPair(std::uint8_t byte, BitPair pair) {
  return static_cast<std::uint8_t>(byte & ~(PairsEqual(byte, pair) * 3));
}

}  // namespace

int OptimizeChar(model::PictureImage& picture, int index) {
  if (index < 0) return 0;
  int pixels = 0;
  const int cell = model::CellOfByte(index + 1);
  std::uint8_t* bytes = &picture.Bitmap.at(static_cast<std::size_t>(index + 1));
  for (const BitPair slot : model::kOwnSlots) {
    if (model::ColourInCell(picture, cell, slot) != picture.BackgroundColour) continue;
    for (int line = 0; line < 8; ++line) {
      pixels += std::popcount(PairsEqual(bytes[line], slot));
      bytes[line] = WithoutPair(bytes[line], slot);
    }
  }
  return pixels;
}

Optimized OptimizeBackgroundColor(model::PictureImage& picture, app::Progress& progress, const ShowCell& show) {
  Optimized done;
  SweepCells(progress, show, [&](const model::PixelPlace& place) {
    const int pixels = OptimizeChar(picture, place.byte - 8);
    done.pixels += pixels;
    if (pixels > 0) ++done.cells;
  });
  return done;
}

}  // namespace kelvo::optimise
