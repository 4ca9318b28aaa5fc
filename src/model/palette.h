// How the C64's colours look on a display, and what they are called.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/c64_colour.h"

namespace kelvo::model {

struct PaletteEntry {
  std::string_view name;
  std::uint8_t red, green, blue;
};

// By colour number; each channel 0..255.
inline constexpr std::array<PaletteEntry, C64Colour::kCount> kPalette{{
    {"00 Black", 0, 0, 0},
    {"01 White", 255, 255, 255},
    {"02 Red", 137, 64, 54},
    {"03 Cyan", 122, 191, 199},
    {"04 Purple", 138, 70, 174},
    {"05 Green", 104, 169, 65},
    {"06 Blue", 62, 49, 162},
    {"07 Yellow", 208, 220, 113},
    {"08 Light brown", 144, 95, 37},
    {"09 Dark brown", 92, 71, 0},
    {"0A Light red", 187, 119, 109},
    {"0B Dark gray", 85, 85, 85},
    {"0C Middle gray", 128, 128, 128},
    {"0D Light green", 172, 234, 136},
    {"0E Light blue", 124, 112, 218},
    {"0F Light gray", 171, 171, 171},
}};

// The display colour of colour `number`, packed as red + green * 256 + blue * 65536. Numbers outside 0..15 are black.
std::uint32_t C64ColourToRgb(int number);

// Colours as pixels of a Surface, 0xFFRRGGBB, by colour number.
using SurfaceColours = std::array<std::uint32_t, C64Colour::kCount>;

constexpr SurfaceColours MakeSurfaceColours() {
  SurfaceColours colours{};
  for (std::size_t number = 0; number < colours.size(); ++number) {
    const PaletteEntry& entry = kPalette[number];
    colours[number] = 0xFF000000U | std::uint32_t{entry.red} << 16 | std::uint32_t{entry.green} << 8 | entry.blue;
  }
  return colours;
}

inline constexpr SurfaceColours kSurfaceColours = MakeSurfaceColours();

// The colours that everything is shown in: one palette for all windows, as a desktop has one. At first kSurfaceColours.
class ShownPalette {
 public:
  static const SurfaceColours& Colours() { return shown; }
  static void Show(const SurfaceColours& colours) { shown = colours; }

 private:
  static inline SurfaceColours shown = kSurfaceColours;
};

inline std::uint32_t SurfaceColour(C64Colour colour) {
  return ShownPalette::Colours()[static_cast<std::size_t>(colour.Number())];
}

// The name as menus show it, number first in hexadecimal: "00 Black" .. "0F Light gray".
std::string_view ColourName(C64Colour colour);

}  // namespace kelvo::model
