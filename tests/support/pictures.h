// Pictures for tests.
#pragma once

#include <array>
#include <cstdint>
#include <random>

#include "model/pixel_colour.h"

namespace kelvo::support {

inline model::C64Colour Colour(int number) {
  return model::C64Colour::FromByte(static_cast<std::uint8_t>(number));
}

// Gives `cell` (1..1000) its eight lines and its own colours.
inline void SetCell(model::PictureImage& picture, int cell, const std::array<std::uint8_t, 8>& lines, int c11, int c10,
                    int c01) {
  const auto index = static_cast<std::size_t>(cell);
  for (std::size_t line = 0; line < 8; ++line) {
    picture.Bitmap[static_cast<std::size_t>(model::BaseOfCell(cell)) + 1 + line] = lines[line];
  }
  picture.ColourMemory[index] = static_cast<std::uint8_t>(c11);
  picture.ScreenMemory[index] = static_cast<std::uint8_t>(c01 << 4 | c10);
}

inline model::PictureImage PictureWithCell(int cell, const std::array<std::uint8_t, 8>& lines, int c11, int c10,
                                           int c01, int background) {
  model::PictureImage picture{.BackgroundColour = Colour(background)};
  SetCell(picture, cell, lines, c11, c10, c01);
  return picture;
}

// Every slot is used: lines of %00 %01 %10 %11.
inline constexpr std::array<std::uint8_t, 8> kAllSlots{0x1B, 0x1B, 0x1B, 0x1B, 0x1B, 0x1B, 0x1B, 0x1B};

inline int ColourAt(const model::PictureImage& picture, int x, int y) {
  return model::GetPixelData(picture, x, y).colour.Number();
}

// Every byte of the three arrays and the background from a fixed seed.
inline model::PictureImage RandomPicture(unsigned seed) {
  std::mt19937 random(seed);
  model::PictureImage picture;
  for (auto* bytes : {picture.Bitmap.data(), picture.ScreenMemory.data(), picture.ColourMemory.data()}) {
    const std::size_t size = bytes == picture.Bitmap.data() ? picture.Bitmap.size() : picture.ScreenMemory.size();
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(random());
  }
  picture.BackgroundColour = model::C64Colour::FromByte(static_cast<std::uint8_t>(random()));
  return picture;
}

// Cells of few colours and many empty lines: large regions, so that fills reach far and the window of their queue
// overflows, and much that can be packed.
inline model::PictureImage BlotchyPicture(unsigned seed) {
  std::mt19937 random(seed);
  model::PictureImage picture{.BackgroundColour = Colour(static_cast<int>(random() % 4))};
  for (int cell = 1; cell <= 1000; ++cell) {
    std::array<std::uint8_t, 8> lines{};
    for (std::uint8_t& line : lines) line = random() % 4 == 0 ? static_cast<std::uint8_t>(random()) : std::uint8_t{0};
    const auto colour = [&] { return static_cast<int>(random() % 6); };
    SetCell(picture, cell, lines, colour(), colour(), colour());
  }
  return picture;
}

}  // namespace kelvo::support
