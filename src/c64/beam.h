// What a PAL machine's beam draws while a program runs on, field after field: 50 a second.
//
//   Beam beam(machine);                       // switches the machine's beam on
//   machine.Start();
//   const Screen first = beam.NextField();
//
// A line is drawn as registers and bitmap stand when it begins; screen and colours are taken at the first of the eight
// lines of a row of cells. Not modelled are changes within a line, and all that screen.h does not draw.
#pragma once

#include <array>
#include <cstdint>

#include "c64/screen.h"
#include "c64/vic.h"

namespace kelvo::c64 {

class Beam {
 public:
  explicit Beam(Machine& machine) : machine_(machine) { machine.SwitchBeamOn(); }

  // Runs the machine until the last line of its next field is drawn. A program that has ended is drawn as it stands.
  Screen NextField();

 private:
  void DrawLine(int y, Screen& screen);

  Machine& machine_;
  std::array<CellColours, kColumns> row_{};  // of cells, which the beam is in
  std::uint64_t field_ = 0;
};

}  // namespace kelvo::c64
