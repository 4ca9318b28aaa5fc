#include "c64/screen.h"

#include "app/number_text.h"

namespace kelvo::c64 {
namespace {

constexpr int kColumns = 40, kRows = 25;
constexpr int kControl1 = 0xD011, kControl2 = 0xD016, kMemory = 0xD018, kBorder = 0xD020, kBackground = 0xD021,
              kColourRam = 0xD800;

// The registers as they stand, and the VIC's own view of the memory.
class Vic {
 public:
  explicit Vic(const Machine& machine) : machine_(machine), bank_(machine.VicBank()) {}

  bool IsOn() const { return (machine_.Io(kControl1) & 0x10) != 0; }
  bool ShowsBitmap() const { return (machine_.Io(kControl1) & 0x20) != 0; }
  bool IsMulticolour() const { return (machine_.Io(kControl2) & 0x10) != 0; }
  int Bitmap() const { return (machine_.Io(kMemory) & 0x08) << 10; }
  int Characters() const { return (machine_.Io(kMemory) & 0x0E) << 10; }
  int ScreenMemory() const { return (machine_.Io(kMemory) & 0xF0) << 6; }
  std::string Address(int offset) const { return "$" + app::ToHex(bank_ + offset, 4); }

  int Colour(int address) const { return machine_.Io(address) & 0x0F; }
  int OnScreen(int cell) const { return Byte(ScreenMemory() + cell); }

  // Line `line` of the eight of a cell.
  int Line(int cell, int line) const {
    return Byte((ShowsBitmap() ? Bitmap() + cell * 8 : Characters() + OnScreen(cell) * 8) + line);
  }

 private:
  // In two of the four banks the ROM's characters lie over the second 4 KB.
  int Byte(int offset) const {
    const bool is_rom = (bank_ & 0x4000) == 0 && offset >> 12 == 1;
    return is_rom ? 0 : machine_.Ram(bank_ + offset);
  }

  const Machine& machine_;
  int bank_;
};

// The colours of a cell: of its four pairs of bits, or of its two bits.
struct CellColours {
  bool is_multicolour;
  std::array<int, 4> colours;
};

CellColours ColoursOf(const Vic& vic, int cell) {
  const int screen = vic.OnScreen(cell), own = vic.Colour(kColourRam + cell), background = vic.Colour(kBackground);
  if (vic.ShowsBitmap()) {
    if (vic.IsMulticolour()) return {true, {background, screen >> 4, screen & 0x0F, own}};
    return {false, {screen & 0x0F, screen >> 4}};
  }
  if (vic.IsMulticolour() && own >= 8) {
    return {true, {background, vic.Colour(kBackground + 1), vic.Colour(kBackground + 2), own - 8}};
  }
  return {false, {background, own}};
}

void DrawCell(const Vic& vic, int cell, Screen& screen) {
  const CellColours shown = ColoursOf(vic, cell);
  for (int line = 0; line < 8; ++line) {
    const int byte = vic.Line(cell, line), y = cell / kColumns * 8 + line;
    for (int x = 0; x < 8; ++x) {
      const int bits = shown.is_multicolour ? byte >> (6 - x / 2 * 2) & 3 : byte >> (7 - x) & 1;
      screen.pixels[static_cast<std::size_t>(y * Screen::kWidth + cell % kColumns * 8 + x)] =
          static_cast<std::uint8_t>(shown.colours[static_cast<std::size_t>(bits)]);
    }
  }
}

std::string ModeOf(const Vic& vic) {
  if (!vic.IsOn()) return "nothing, the display is off";
  const std::string what = vic.ShowsBitmap() ? "bitmap at " + vic.Address(vic.Bitmap())
                                             : "text with characters at " + vic.Address(vic.Characters());
  return (vic.IsMulticolour() ? "multicolour " : "") + what + ", screen at " + vic.Address(vic.ScreenMemory());
}

}  // namespace

Screen ScreenOf(const Machine& machine) {
  const Vic vic(machine);
  Screen screen;
  screen.border = static_cast<std::uint8_t>(vic.Colour(kBorder));
  screen.mode = ModeOf(vic);
  screen.pixels.fill(screen.border);
  if (!vic.IsOn()) return screen;
  for (int cell = 0; cell < kColumns * kRows; ++cell) DrawCell(vic, cell, screen);
  return screen;
}

}  // namespace kelvo::c64
