// The VIC's own view of registers and memory, for what draws a screen of them.
#pragma once

#include <array>
#include <string>

#include "c64/screen.h"

namespace kelvo::c64 {

inline constexpr int kColumns = 40, kRows = 25;

// The registers as they stand, and the VIC's own view of the memory.
class Vic {
 public:
  static constexpr int kBorder = 0xD020, kBackground = 0xD021, kColourRam = 0xD800;

  explicit Vic(const Machine& machine) : machine_(machine), bank_(machine.VicBank()) {}

  std::string Mode() const;  // as Screen::mode
  bool IsOn() const { return (machine_.Io(kControl1) & 0x10) != 0; }
  bool ShowsBitmap() const { return (machine_.Io(kControl1) & 0x20) != 0; }
  bool IsMulticolour() const { return (machine_.Io(kControl2) & 0x10) != 0; }
  int Bitmap() const { return (machine_.Io(kMemory) & 0x08) << 10; }
  int Characters() const { return (machine_.Io(kMemory) & 0x0E) << 10; }
  int ScreenMemory() const { return (machine_.Io(kMemory) & 0xF0) << 6; }

  int Colour(int address) const { return machine_.Io(address) & 0x0F; }
  int OnScreen(int cell) const { return Byte(ScreenMemory() + cell); }

  // Line `line` (0..7) of a cell (0..999).
  int Line(int cell, int line) const;

 private:
  static constexpr int kControl1 = 0xD011, kControl2 = 0xD016, kMemory = 0xD018;

  std::string Address(int offset) const;
  int Byte(int offset) const;

  const Machine& machine_;
  int bank_;
};

// The colours of a cell: of its four pairs of bits, or of its two bits.
struct CellColours {
  bool is_multicolour = false;
  std::array<int, 4> colours{};
};

CellColours ColoursOf(const Vic& vic, int cell);

// Draws one line of a cell with the colours `shown`.
void DrawLineOfCell(const Vic& vic, const CellColours& shown, int cell, int line, Screen& screen);

}  // namespace kelvo::c64
