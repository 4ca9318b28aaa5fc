#include "c64/beam.h"

#include <algorithm>

namespace kelvo::c64 {

Screen Beam::NextField() {
  Screen screen;
  for (int y = 0; y < Screen::kHeight; ++y) {
    const auto line = static_cast<std::uint64_t>(Machine::kFirstLine + y);
    machine_.RunOn(field_ * Machine::kFieldCycles + line * Machine::kLineCycles);
    DrawLine(y, screen);
  }
  const Vic vic(machine_);
  screen.border = static_cast<std::uint8_t>(vic.Colour(Vic::kBorder));
  screen.mode = vic.Mode();
  ++field_;
  return screen;
}

void Beam::DrawLine(int y, Screen& screen) {
  const Vic vic(machine_);
  if (!vic.IsOn()) {
    std::fill_n(screen.pixels.begin() + y * Screen::kWidth, Screen::kWidth, vic.Colour(Vic::kBorder));
    return;
  }
  for (int column = 0; column < kColumns; ++column) {
    CellColours& shown = row_[static_cast<std::size_t>(column)];
    const int cell = y / 8 * kColumns + column;
    if (y % 8 == 0) shown = ColoursOf(vic, cell);
    DrawLineOfCell(vic, shown, cell, y % 8, screen);
  }
}

}  // namespace kelvo::c64
