// What a C64's VIC shows of its memory, as it stands at one moment.
//
// Modelled are the border, a display that is switched off, and bitmaps and text, both plain and multicolour, in the
// VIC's bank. Not modelled are sprites, fine scrolling, colours that change down the screen, and the text mode of
// several backgrounds. The characters of the ROM are not there and read as blank.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "c64/machine.h"

namespace kelvo::c64 {

struct Screen {
  static constexpr int kWidth = 320, kHeight = 200;

  // The colour (0..15) of the pixel at `x` 0..319, `y` 0..199; a multicolour pixel is two of them.
  int At(int x, int y) const { return pixels[static_cast<std::size_t>(y * kWidth + x)]; }

  std::array<std::uint8_t, static_cast<std::size_t>(kWidth) * kHeight> pixels{};
  std::uint8_t border = 0;
  std::string mode;  // such as "multicolour bitmap at $6000, screen at $5C00"
};

Screen ScreenOf(const Machine& machine);

}  // namespace kelvo::c64
