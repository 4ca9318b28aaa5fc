// Whether a C64 shows a picture.
#pragma once

#include <gtest/gtest.h>

#include "model/picture_image.h"
#include "support/c64_machine.h"

namespace kelvo::support {

// All that is seen of `picture`: of the colours their low nibbles.
inline void ExpectShows(const C64Machine& machine, const model::PictureImage& picture) {
  EXPECT_EQ(machine.VicBank(), 0x4000);
  const std::pair<int, int> registers[] = {{0xD011, 0x3B}, {0xD016, 0x18}, {0xD018, 0x78}, {0xD015, 0}};
  for (const auto& [address, value] : registers) EXPECT_EQ(machine.Io(address), value) << address;
  for (const int colour : {0xD020, 0xD021}) {
    EXPECT_EQ(machine.Io(colour) & 0x0F, picture.BackgroundColour.Number()) << colour;
  }
  for (int i = 0; i < 8000; ++i) ASSERT_EQ(machine.Ram(0x6000 + i), picture.Bitmap[i + 1U]) << i;
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(machine.Ram(0x5C00 + i), picture.ScreenMemory[i + 1U]) << i;
    ASSERT_EQ(machine.Io(0xD800 + i) & 0x0F, picture.ColourMemory[i + 1U] & 0x0F) << i;
  }
  EXPECT_TRUE(machine.IoVisible());
  EXPECT_TRUE(machine.Cpu().Has(Cpu6502::kInterruptsOff));
}

}  // namespace kelvo::support
