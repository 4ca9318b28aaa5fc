// Whether a C64 shows a picture.
#pragma once

#include <gtest/gtest.h>

#include "c64/screen.h"
#include "support/pictures.h"

namespace kelvo::support {

// Runs `program` to its end, which must be a loop that shows all that is seen of `picture`.
inline void ExpectShows(const app::Bytes& program, const model::PictureImage& picture, c64::Machine& machine) {
  machine.Load(program);
  ASSERT_EQ(machine.Run(), c64::Machine::Ending::kLoops);
  const c64::Screen screen = c64::ScreenOf(machine);
  EXPECT_EQ(screen.mode, "multicolour bitmap at $6000, screen at $5C00");
  EXPECT_EQ(screen.border, picture.BackgroundColour.Number());
  for (const auto& [address, value] : {std::pair{0xD011, 0x3B}, {0xD016, 0x18}, {0xD015, 0}}) {
    EXPECT_EQ(machine.Io(address), value) << address;  // nothing is scrolled, no sprite is in front
  }
  for (int y = 0; y < c64::Screen::kHeight; ++y) {
    for (int x = 0; x < c64::Screen::kWidth; ++x) {
      ASSERT_EQ(screen.At(x, y), ColourAt(picture, x / 2 + 1, y + 1)) << x << ' ' << y;
    }
  }
  EXPECT_TRUE(machine.IoVisible() && machine.Cpu().Has(c64::Cpu6502::kInterruptsOff));
}

}  // namespace kelvo::support
