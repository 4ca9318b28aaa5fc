// Whether a C64 shows a picture.
#pragma once

#include <gtest/gtest.h>

#include "model/picture_image.h"
#include "support/c64_machine.h"

namespace kelvo::support {

// All that is seen of `picture`: of the colours their low nibbles.
inline void ExpectShows(const C64Machine& machine, const model::PictureImage& picture) {
  using Block = std::vector<std::uint8_t>;
  const C64Machine::Shown shown = machine.Show();
  Block colours(picture.ColourMemory.begin() + 1, picture.ColourMemory.begin() + 1001);
  for (std::uint8_t& colour : colours) colour &= 0x0F;
  EXPECT_EQ(shown.bitmap, Block(picture.Bitmap.begin() + 1, picture.Bitmap.begin() + 8001));
  EXPECT_EQ(shown.screen, Block(picture.ScreenMemory.begin() + 1, picture.ScreenMemory.begin() + 1001));
  EXPECT_EQ(shown.colours, colours);
  EXPECT_EQ(shown.bank, 1);
  EXPECT_EQ(shown.control1, 0x3B);
  EXPECT_EQ(shown.control2, 0x18);
  EXPECT_EQ(shown.memory, 0x78);
  EXPECT_EQ(shown.border, picture.BackgroundColour.Number());
  EXPECT_EQ(shown.background, picture.BackgroundColour.Number());
  EXPECT_EQ(shown.sprites, 0);
  EXPECT_TRUE(machine.IoVisible());
  EXPECT_TRUE(machine.Cpu().Has(Cpu6502::kInterruptsOff));
}

}  // namespace kelvo::support
