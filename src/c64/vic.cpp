#include "c64/vic.h"

#include "app/number_text.h"

namespace kelvo::c64 {

std::string Vic::Mode() const {
  if (!IsOn()) return "nothing, the display is off";
  const std::string what =
      ShowsBitmap() ? "bitmap at " + Address(Bitmap()) : "text with characters at " + Address(Characters());
  return (IsMulticolour() ? "multicolour " : "") + what + ", screen at " + Address(ScreenMemory());
}

std::string Vic::Address(int offset) const {
  return "$" + app::ToHex(bank_ + offset, 4);
}

int Vic::Line(int cell, int line) const {
  return Byte((ShowsBitmap() ? Bitmap() + cell * 8 : Characters() + OnScreen(cell) * 8) + line);
}

// In two of the four banks the ROM's characters lie over the second 4 KB.
int Vic::Byte(int offset) const {
  const bool is_rom = (bank_ & 0x4000) == 0 && offset >> 12 == 1;
  return is_rom ? 0 : machine_.Ram(bank_ + offset);
}

CellColours ColoursOf(const Vic& vic, int cell) {
  const int screen = vic.OnScreen(cell), own = vic.Colour(Vic::kColourRam + cell),
            background = vic.Colour(Vic::kBackground);
  if (vic.ShowsBitmap()) {
    if (vic.IsMulticolour()) return {true, {background, screen >> 4, screen & 0x0F, own}};
    return {false, {screen & 0x0F, screen >> 4}};
  }
  if (vic.IsMulticolour() && own >= 8) {
    return {true, {background, vic.Colour(Vic::kBackground + 1), vic.Colour(Vic::kBackground + 2), own - 8}};
  }
  return {false, {background, own}};
}

void DrawLineOfCell(const Vic& vic, const CellColours& shown, int cell, int line, Screen& screen) {
  const int byte = vic.Line(cell, line), y = cell / kColumns * 8 + line;
  for (int x = 0; x < 8; ++x) {
    const int bits = shown.is_multicolour ? byte >> (6 - x / 2 * 2) & 3 : byte >> (7 - x) & 1;
    screen.pixels[static_cast<std::size_t>(y * Screen::kWidth + cell % kColumns * 8 + x)] =
        static_cast<std::uint8_t>(shown.colours[static_cast<std::size_t>(bits)]);
  }
}

}  // namespace kelvo::c64
