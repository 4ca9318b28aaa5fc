#include "model/palette.h"

#include <array>

namespace kelvo::model {
namespace {

struct PaletteEntry {
  std::string_view name;
  std::uint8_t red, green, blue;
};

constexpr std::array<PaletteEntry, C64Colour::kCount> kPalette{{
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

constexpr std::uint32_t kOpaque = 0xFF000000;

constexpr auto kSurfaceColours = [] {
  std::array<std::uint32_t, C64Colour::kCount> colours{};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    const PaletteEntry& entry = kPalette[i];
    colours[i] = kOpaque | std::uint32_t{entry.red} << 16 | std::uint32_t{entry.green} << 8 | entry.blue;
  }
  return colours;
}();

const PaletteEntry& EntryOf(C64Colour colour) {
  return kPalette[static_cast<std::size_t>(colour.Number())];
}

}  // namespace

std::uint32_t C64ColourToRgb(int number) {
  const auto colour = C64Colour::FromNumber(number);
  if (!colour) return 0;
  const PaletteEntry& entry = EntryOf(*colour);
  return entry.red + entry.green * 256U + entry.blue * 65536U;
}

std::uint32_t SurfaceColour(C64Colour colour) {
  return kSurfaceColours[static_cast<std::size_t>(colour.Number())];
}

std::string_view ColourName(C64Colour colour) {
  return EntryOf(colour).name;
}

}  // namespace kelvo::model
