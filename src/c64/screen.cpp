#include "c64/screen.h"

#include "c64/vic.h"

namespace kelvo::c64 {

Screen ScreenOf(const Machine& machine) {
  const Vic vic(machine);
  Screen screen;
  screen.border = static_cast<std::uint8_t>(vic.Colour(Vic::kBorder));
  screen.mode = vic.Mode();
  screen.pixels.fill(screen.border);
  if (!vic.IsOn()) return screen;
  for (int cell = 0; cell < kColumns * kRows; ++cell) {
    const CellColours shown = ColoursOf(vic, cell);
    for (int line = 0; line < 8; ++line) DrawLineOfCell(vic, shown, cell, line, screen);
  }
  return screen;
}

}  // namespace kelvo::c64
