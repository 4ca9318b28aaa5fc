// The finished program on a C64: from its SYS line until the viewer shows the picture, which must be the one painted.
#include "support/picture_program.h"

#include <gtest/gtest.h>

#include "support/mazes.h"
#include "support/painted.h"
#include "support/pictures.h"
#include "support/shown_picture.h"
#include "support/temp_folder.h"

namespace kelvo::support {
namespace {

// Cells drawn one by one; `seed` decides their kind.
model::PictureImage PaintedPicture(unsigned seed) {
  model::PictureImage picture{.BackgroundColour = Colour(static_cast<int>(seed % 16))};
  std::mt19937 random(seed);
  for (int cell = 1; cell <= 1000; ++cell) {
    if (random() % 3 == 0) continue;
    const auto dither = static_cast<std::uint8_t>(random() % 2 == 0 ? 0x66 : 0x99);
    SetCell(picture, cell, random() % 4 == 0 ? kAllSlots : std::array<std::uint8_t, 8>{dither, 0x1B, dither, 0, 0, 3},
            static_cast<int>(random() % 16), cell / 40 % 16, 7);
  }
  return picture;
}

// Upright stripes and level ones: the first pack better in columns, the second in rows of cells.
model::PictureImage StripedPicture(bool upright) {
  model::PictureImage picture{.BackgroundColour = Colour(0)};
  const auto stripes = RandomPicture(9).Bitmap;
  for (std::size_t i = 0; i < 8000; ++i) {
    picture.Bitmap[i + 1] = stripes[upright ? i / 8 % 40 + 1 : i / 320 * 3 + i % 3 + 1];
  }
  return picture;
}

void ExpectShown(const app::Bytes& program, const model::PictureImage& picture, C64Machine& machine) {
  machine.Load(program);
  ASSERT_EQ(machine.Run(), C64Machine::Ending::kLoops);
  ExpectShows(machine, picture);
}

class PictureProgram : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!HasAssembler()) GTEST_SKIP() << "64tass is not installed";
  }

  TempFolder folder_;
};

TEST_F(PictureProgram, ShowsThePictureThatWasPainted) {
  const std::pair<const char*, model::PictureImage> cases[] = {
      {"blank", {.BackgroundColour = Colour(6)}},
      {"random, with high nibbles in its colours", RandomPicture(77)},
      {"painted", PaintedPicture(3)},
      {"maze", Maze()},
      {"upright", StripedPicture(true)},
      {"level", StripedPicture(false)},
  };
  for (const auto& [what, picture] : cases) {
    SCOPED_TRACE(what);
    C64Machine machine;
    ExpectShown(BuildPictureProgram(folder_.Path(), picture), picture, machine);
    EXPECT_EQ(machine.Cpu().stack, machine.StackAtStart());
  }
}

TEST_F(PictureProgram, ShowsItWhateverARunningProgramLeaves) {
  for (const auto& picture : {PaintedPicture(4), RandomPicture(5)}) {
    C64Machine machine;
    machine.LeaveUnclean();
    ExpectShown(BuildPictureProgram(folder_.Path(), picture, StartedBy::kNetwork), picture, machine);
    EXPECT_EQ(machine.Cpu().stack, 0xFF);
    EXPECT_FALSE(machine.Cpu().Has(Cpu6502::kDecimal));
  }
}

TEST_F(PictureProgram, TakesNoHarmFromTheRestoreKeyOrTheNameOfItsFolder) {
#ifdef _WIN32
  GTEST_SKIP() << "file names cannot hold these characters here";
#endif
  const std::filesystem::path odd = folder_ / "it's $HOME; [100%] & #1 <ü>";
  std::filesystem::create_directories(odd);
  const model::PictureImage picture = PaintedPicture(5);
  C64Machine machine;
  machine.PressRestoreEvery(977);
  ExpectShown(BuildPictureProgram(odd, picture), picture, machine);
}

}  // namespace
}  // namespace kelvo::support
