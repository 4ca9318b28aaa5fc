#include "model/palette.h"

namespace kelvo::model {
namespace {

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

std::string_view ColourName(C64Colour colour) {
  return EntryOf(colour).name;
}

}  // namespace kelvo::model
