// Templates that a user has changed and tools that lie: a build makes a program that shows the picture, or says why
// not.
#include <gtest/gtest.h>

#include <set>

#include "c64out/text_lines.h"
#include "support/picture_program.h"
#include "support/pictures.h"
#include "support/shown_picture.h"

namespace kelvo::support {
namespace {

namespace fs = std::filesystem;

// Replaces `from`, which must be there, in a template.
std::function<void(const fs::path&)> Change(const std::string& name, const std::string& from, const std::string& to) {
  return [=](const fs::path& system) {
    const std::string text = ReadText(system / name);
    ASSERT_NE(text.find(from), std::string::npos);
    WriteText(system / name, c64out::Replaced(text, from, to));
  };
}

// Keeps `share` (0..1) of a file of that name that a tool has made.
std::function<void(const fs::path&)> CutOff(const std::string& name, double share) {
  return [=](const fs::path& made) {
    if (made.filename() == name) {
      fs::resize_file(made, static_cast<std::uintmax_t>(static_cast<double>(fs::file_size(made)) * share));
    }
  };
}

class ChangedTemplates : public testing::Test {
 protected:
  void SetUp() override {
    if (!IsInstalled("64tass")) GTEST_SKIP() << "64tass is not installed";
  }

  BuiltProgram Build(const BuildChanges& changes) {
    for (const char* name : {"bmpshow.src", "decrush.tas"}) fs::remove(folder_ / "program/SYSTEM" / name);
    return BuildChangedProgram(folder_.Path(), picture_, changes);
  }

  TempFolder folder_;
  model::PictureImage picture_ = RandomPicture(21);  // with high nibbles in its colours
};

TEST_F(ChangedTemplates, StillMakeAProgramThatShowsThePicture) {
  const std::pair<const char*, std::function<void(const fs::path&)>> cases[] = {
      {"high nibbles", Change("bmpshow.src", " & $0f", "")},
      {"1100 bytes of code", Change("bmpshow.src", "jmp *\n", "jmp *\n                .fill 1100, $ea\n")},
      {"5000 bytes of code", Change("bmpshow.src", "jmp *\n", "jmp *\n                .fill 5000, $ea\n")},
  };
  for (const auto& [what, change] : cases) {
    SCOPED_TRACE(what);
    const BuiltProgram built = Build({.templates = change});
    c64::Machine machine;
    ExpectShows(built.program, picture_, machine);
    EXPECT_EQ(built.said.back(), "--> PRG complete.");
  }
}

TEST_F(ChangedTemplates, AndToolsThatLieEndTheBuildWithOneLineThatSaysWhy) {
  const std::string code = "jmp *\n";
  const std::tuple<const char*, BuildChanges, const char*> cases[] = {
      {"file order",
       {.templates = Change("bmpshow.src", ".text picture[2048:10048]\n", ".text picture[0:10048]\n")},
       "--> The program crashes on a C64: "},
      {"too much code",
       {.templates = Change("bmpshow.src", code, code + " .fill 7000, 1\n")},
       "code of up to 6000 bytes"},
      {"an opcode that stops it", {.templates = Change("bmpshow.src", code, ".byte $02\n")}, "is not documented"},
      {"an error", {.templates = Change("bmpshow.src", code, "jmp nowhere\n")}, "--> bmpshow.src, line "},
      {"half an object", {.tools = CutOff("bmpshow.obj", 0.5)}, "code of up to 6000 bytes"},
      {"half a packed file", {.tools = CutOff("bmpshow.pak", 0.5)}, "--> crush: "},
      {"a little less of one", {.tools = CutOff("bmpshow.pak", 0.999)}, "--> crush: "},
      {"half a program", {.tools = CutOff("bmpshow.prg", 0.5)}, "--> tass: the program does not end"},
  };
  for (const auto& [what, changes, why] : cases) {
    SCOPED_TRACE(what);
    const BuiltProgram built = Build(changes);
    ASSERT_GE(built.said.size(), 2U);
    EXPECT_EQ(built.said.back(), "--> [err 908]");
    EXPECT_NE(built.said[built.said.size() - 2].find(why), std::string::npos) << built.said[built.said.size() - 2];
  }
}

TEST_F(ChangedTemplates, NameTheirOwnLineAndItsText) {
  const BuiltProgram built = Build({.templates = Change("decrush.tas", "jmp viewer + 2\n", "jmp viewr + 2\n")});
  const c64out::Lines lines = c64out::LinesOf(ReadText(folder_ / "program/SYSTEM/decrush.tas"));
  const auto wrong =
      std::find_if(lines.begin(), lines.end(), [](const auto& line) { return line.ends_with("jmp viewr + 2"); });
  const std::string& said = built.said.at(built.said.size() - 2);
  EXPECT_TRUE(said.starts_with("--> decrush.tas, line " + std::to_string(wrong - lines.begin() + 1) + ": ")) << said;
  EXPECT_TRUE(said.ends_with(": jmp viewr + 2")) << said;
}

TEST_F(ChangedTemplates, ThatShowSomethingElseAreToldAndKept) {
  for (const char* code : {"lda #$0b\n", "jsr $ffd2\n"}) {
    const BuiltProgram built = Build({.templates = Change("bmpshow.src", "lda #$3b ", code)});
    EXPECT_FALSE(built.program.empty());
    const auto is_note = [](const std::string& line) { return line.starts_with("--> Note: "); };
    EXPECT_EQ(std::count_if(built.said.begin(), built.said.end(), is_note), 1) << code;
    EXPECT_EQ(built.said.back(), "--> PRG complete.");
  }
}

TEST_F(ChangedTemplates, AreNotTriedWhenTheUserSaysSo) {
  const auto unchecked = [](app::SettingsStore& settings) { settings.Write(c64out::kCheckPrograms, "0"); };
  const BuiltProgram built =
      Build({.templates = Change("bmpshow.src", "jmp *\n", ".byte $02\n"), .settings = unchecked});
  EXPECT_FALSE(built.program.empty());
}

TEST_F(ChangedTemplates, MayLetThePictureFadeIn) {
  const auto fades = [](app::SettingsStore& settings) { settings.Write(c64out::kFadeIn, "1"); };
  const BuiltProgram built = Build({.settings = fades});
  EXPECT_EQ(built.said[built.said.size() - 2], "--> Adding depacker");  // no note
  c64::Machine machine;
  machine.LetItChangeWhatIsShown();
  machine.Load(built.program);
  machine.Start();
  int seen = 0, colours = 0;  // ever more of them
  while (!machine.RunOn(machine.Cpu().cycles + 20'000)) {
    const c64::Screen screen = c64::ScreenOf(machine);
    if ((machine.Io(0xD011) & 0x20) == 0) continue;
    const std::set<int> shown(screen.pixels.begin(), screen.pixels.end());
    seen += static_cast<int>(shown.size()) > colours ? 1 : 0;
    EXPECT_GE(static_cast<int>(shown.size()), colours);
    colours = static_cast<int>(shown.size());
  }
  EXPECT_GE(seen, 5);
  EXPECT_EQ(c64::ScreenOf(machine).At(0, 0), ColourAt(picture_, 1, 1));
}

// Space and Run/Stop are two keys of one row; another of that row and no key at all go on showing.
TEST_F(ChangedTemplates, LetAKeyEndThePictureWithBasicAsItWas) {
  const auto key_ends = [](app::SettingsStore& settings) { settings.Write(c64out::kKeyEndsPicture, "1"); };
  const BuiltProgram built = Build({.settings = key_ends});
  EXPECT_EQ(std::count(built.said.begin(), built.said.end(), "--> PRG complete."), 1);
  for (const int key : {0xEF, 0x7F}) {
    c64::Machine machine;
    machine.Load(built.program);
    const c64::Screen before = c64::ScreenOf(machine);
    machine.Start();
    machine.Write(0xDC01, 0xFE);
    EXPECT_FALSE(machine.RunOn(3'000'000));
    EXPECT_EQ(c64::ScreenOf(machine).At(0, 0), ColourAt(picture_, 1, 1));
    machine.Write(0xDC01, static_cast<std::uint8_t>(key));
    EXPECT_EQ(machine.RunOn(4'000'000), c64::Machine::Ending::kReturns);
    const c64::Screen after = c64::ScreenOf(machine);
    EXPECT_EQ(std::tie(after.mode, after.border, after.pixels), std::tie(before.mode, before.border, before.pixels));
    const c64::Machine fresh;
    for (int address = 0xD800; address < 0xDBE8; ++address) {
      ASSERT_EQ(machine.Io(address) & 0x0F, fresh.Io(address) & 0x0F) << address;
    }
    EXPECT_EQ(machine.Io(0xD015), fresh.Io(0xD015));
    EXPECT_FALSE(machine.Cpu().Has(c64::Cpu6502::kInterruptsOff));
  }
}

}  // namespace
}  // namespace kelvo::support
