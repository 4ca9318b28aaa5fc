// The finished program on a C64: from its SYS line until the viewer shows the picture, which must be the one painted.
// And that C64 itself: that it counts cycles, notices what a sound program does not do, and shows each mode.
#include "support/picture_program.h"

#include <gtest/gtest.h>

#include "model/palette.h"
#include "support/mazes.h"
#include "support/pictures.h"
#include "support/platform.h"
#include "support/shown_picture.h"

namespace kelvo::support {
namespace {

// Upright stripes and level ones: the first pack better in columns, the second in rows of cells.
model::PictureImage StripedPicture(bool upright) {
  model::PictureImage picture{.BackgroundColour = Colour(0)};
  const auto stripes = RandomPicture(9).Bitmap;
  for (std::size_t i = 0; i < 8000; ++i) {
    picture.Bitmap[i + 1] = stripes[upright ? i / 8 % 40 + 1 : i / 320 * 3 + i % 3 + 1];
  }
  return picture;
}

class PictureProgram : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!IsInstalled("64tass")) GTEST_SKIP() << "64tass is not installed";
  }

  TempFolder folder_;
};

TEST_F(PictureProgram, ShowsThePictureThatWasPainted) {
  const std::pair<const char*, model::PictureImage> cases[] = {
      {"blank", {.BackgroundColour = Colour(6)}},
      {"random, with high nibbles in its colours", RandomPicture(77)},
      {"painted", BlotchyPicture(3)},
      {"maze", Maze()},
      {"upright", StripedPicture(true)},
      {"level", StripedPicture(false)},
  };
  for (const auto& [what, picture] : cases) {
    SCOPED_TRACE(what);
    c64::Machine machine;
    ExpectShows(BuildPictureProgram(folder_.Path(), picture), picture, machine);
    EXPECT_EQ(machine.Cpu().stack, machine.StackAtStart());
  }
}

TEST_F(PictureProgram, ShowsItWhateverARunningProgramLeaves) {
  for (const auto& picture : {BlotchyPicture(4), RandomPicture(5)}) {
    c64::Machine machine;
    machine.LeaveUnclean();
    ExpectShows(BuildPictureProgram(folder_.Path(), picture, StartedBy::kNetwork), picture, machine);
    EXPECT_EQ(machine.Cpu().stack, 0xFF);
    EXPECT_FALSE(machine.Cpu().Has(c64::Cpu6502::kDecimal));
  }
}

TEST_F(PictureProgram, TakesNoHarmFromTheRestoreKeyOrTheNameOfItsFolder) {
  std::vector<const char*> names{"it's $HOME; [100%] & #1 \u00fc", "[screencolor] [bitmap]",
                                 "\u4f60\u597d \u041f\u0440\u0438 \u0142 %PATH% ^x^ (1) =,"};
  if (!kIsWindows) names.insert(names.end(), {"<CC> <\u00fc> \"quoted\" \\ \"", "\r .end\n"});
  const model::PictureImage picture = BlotchyPicture(5);
  for (const char* name : names) {
    SCOPED_TRACE(name);
    const std::filesystem::path place = folder_ / app::PathFromText(name);
    std::filesystem::create_directories(place);
    c64::Machine machine;
    machine.PressRestoreEvery(977);
    ExpectShows(BuildPictureProgram(place, picture), picture, machine);
  }
}

TEST_F(PictureProgram, IsShownInAnImageByTheProgramForDevelopers) {
  const std::string program = (folder_ / "p.prg").string(), image = (folder_ / "p.ppm").string();
  const auto show = [](const std::vector<std::string>& words) { return RunTool(KELVO_C64_SHOW, words).exit_code; };
  const model::PictureImage picture = BlotchyPicture(6);
  WriteFile(program, BuildPictureProgram(folder_.Path(), picture));
  EXPECT_EQ(show({program, image}), 0);
  const app::Bytes bytes = ReadFile(image);
  const std::string header = "P6\n384 264\n255\n";
  ASSERT_EQ(bytes.size(), header.size() + std::size_t{384} * 264 * 3);
  for (const auto& [x, y] : {std::pair{1, 1}, {160, 200}, {77, 90}}) {
    const std::size_t at = header.size() + static_cast<std::size_t>((y + 31) * 384 + x * 2 + 30) * 3;
    EXPECT_EQ(bytes[at], model::kPalette.at(static_cast<std::size_t>(ColourAt(picture, x, y))).red) << x;
  }
  EXPECT_EQ(show({"-c", "1000", program}), 1);
  EXPECT_EQ(show({(folder_ / "gone").string()}), 1);
  for (const Lines& wrong : {Lines{}, {"-s"}, {"-x", program}, {program, image, image}}) EXPECT_EQ(show(wrong), 2);
}

using Code = std::vector<std::uint8_t>;

// A PRG that runs `code` at $080D from the BASIC line 10 SYS2061.
Code Program(const Code& code) {
  Code prg{0x01, 0x08, 0x0B, 0x08, 0x0A, 0x00, 0x9E, '2', '0', '6', '1', 0, 0, 0};
  for (const std::uint8_t byte : code) prg.push_back(byte);
  return prg;
}

TEST(C64, CountsTheCyclesOfAC64) {
  const std::pair<std::uint64_t, Code> cases[] = {
      {8, {0xA9, 0x80, 0x2A, 0x6A, 0x4A}},                                             // in the accumulator
      {16, {0xA2, 0x03, 0xCA, 0xD0, 0xFD}},                                            // a loop
      {16, {0xA2, 0xFF, 0xA9, 7, 0x85, 2, 0xB5, 3, 0xBD, 3, 0xFF}},                    // a read across a page
      {21, {0xA9, 2, 0x85, 0xFB, 0xA0, 0, 0x84, 0xFC, 0x91, 0xFB, 0xB1, 0xFB}},        // through a pointer
      {23, {0x20, 0x14, 0x08, 0xA2, 0x09, 0x60, 0xEA, 0xA9, 0x33, 0x48, 0x68, 0x60}},  // a call
      {13, {0xA9, 0xFF, 0x85, 0x02, 0xE6, 0x02, 0xA6, 0x02}},                          // counting in memory
  };
  for (const auto& [cycles, code] : cases) {
    c64::Machine machine;
    machine.Load(Program(code));
    machine.Poke(static_cast<std::uint16_t>(0x080D + code.size()), 0x60);
    ASSERT_EQ(machine.Run(), c64::Machine::Ending::kReturns);
    EXPECT_EQ(machine.Cpu().cycles, cycles + 6);
  }
}

TEST(C64, NoticesWhatASoundProgramDoesNotDo) {
  const std::pair<const char*, Code> cases[] = {
      {"runs into memory that nobody wrote", {0x4C, 0x00, 0x40}},
      {"calls a KERNAL routine without a trap", {0x20, 0xD2, 0xFF}},
      {"reads ROM as data", {0xAD, 0x00, 0xA0}},
      {"writes BASIC's pointers", {0x85, 0x2B}},
      {"is interrupted without KERNAL", {0xA9, 0x35, 0x85, 0x01, 0x4C, 0x14, 0x08, 0x4C, 0x11, 0x08}},
      {"has an undocumented opcode", {0x02}},
      {"writes a shown bitmap", {0xA9, 0x3B, 0x8D, 0x11, 0xD0, 0x8D, 0x00, 0x04}},
      {"never ends", {0xEA, 0x4C, 0x0D, 0x08}},
  };
  for (const auto& [what, code] : cases) {
    c64::Machine machine;
    machine.Load(Program(code));
    EXPECT_THROW(machine.Run(100'000), c64::MachineFault) << what;
  }
}

TEST(C64, ShowsEachModeButTheRomsCharacters) {
  // $D011, $D016, $D018; the colours of the four pairs of pixels of 00 01 10 11, or -1 for the border.
  const std::tuple<int, int, int, std::array<int, 4>> cases[] = {
      {0x3B, 0x18, 0x18, {1, 2, 3, 12}},  {0x3B, 0x08, 0x18, {3, 3, 2, 2}}, {0x1B, 0x18, 0x12, {1, 5, 7, 4}},
      {0x1B, 0x08, 0x12, {1, 1, 12, 12}}, {0x1B, 0x08, 0x14, {1, 1, 1, 1}}, {0x0B, 0x08, 0x12, {9, 9, 9, 9}}};
  for (const auto& [control, multicolour, memory, shown] : cases) {
    c64::Machine machine;
    for (int i = 0; i < 8; ++i) {
      for (const int place : {0x2000, 0x0918}) machine.Poke(static_cast<std::uint16_t>(place + i), 0x1B);
    }
    machine.Poke(0x0400, 0x23);
    const std::pair<int, int> registers[] = {{0xD800, 12}, {0xD020, 9},      {0xD021, 1},           {0xD022, 5},
                                             {0xD023, 7},  {0xD018, memory}, {0xD016, multicolour}, {0xD011, control}};
    for (const auto& [address, value] : registers) {
      machine.Write(static_cast<std::uint16_t>(address), static_cast<std::uint8_t>(value));
    }
    const c64::Screen screen = c64::ScreenOf(machine);
    for (int x = 0; x < 8; x += 2) EXPECT_EQ(screen.At(x, 3), shown[static_cast<std::size_t>(x / 2)]) << screen.mode;
  }
}

}  // namespace
}  // namespace kelvo::support
