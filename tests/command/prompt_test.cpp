// The prompt: what can be typed, every word of the command language and every error number, with its exact replies, on
// real folders.
#include <gtest/gtest.h>

#include <stdexcept>

#include "command/input_line.h"
#include "command/process_command.h"
#include "support/platform.h"
#include "support/program.h"

namespace kelvo::command {
namespace {

namespace fs = std::filesystem;
using support::Lines;

// An error of somebody else, which is not the command's.
const AnimationSwitch kFailingAnimation{[]() -> bool { throw std::logic_error("no mode"); }, [](bool) {}};

class ProcessCommandTest : public testing::Test, protected support::Program {
 protected:
  Lines Replies(const std::string& line) {
    prompt.lines.clear();
    ProcessCommand(line, surroundings, kFailingAnimation, images);
    return prompt.lines;
  }
  // One image can be read; the bare word asks.
  Lines imported;
  const ImageImport images{[this] { imported.emplace_back("?"); },
                           [this](const fs::path& image) {
                             imported.push_back(app::TextFromPath(image.lexically_relative(folders.Root())));
                             return fs::exists(image);
                           }};
  static void WritePicture(const fs::path& path) {
    fs::create_directories(path.parent_path());
    support::WriteFile(path, support::CountingBytes(10003));
  }
};

TEST_F(ProcessCommandTest, RepliesExactly) {
  const std::string long_word(10000, 'X'), commas(10000, ',');
  Lines numbers{"LOAD PIC"}, no_numbers{"LOAD ,", "LOAD " + commas};
  for (const char* number : {"8", " 8 ", "-8", "+8.5", "8.", ".5", "1E3", "1e-3", "1.5E+10"}) {
    numbers.push_back(std::string("LOAD PIC,") + number);
  }
  for (const char* text : {"", " ", "X", "8,9", "8 9", ".", "-", "E3", "1E", "1E+", "--8", "0X8", "INF", "8X"}) {
    no_numbers.push_back(std::string("LOAD PIC,") + text);
  }
  const std::pair<std::string, Lines> lines_by_reply[] = {
      {"",
       {"DIR", "BF 1", "BLOCKFILL", "MC", "MOUSECOPY A,B", "", std::string(10000, ' '), "MD", "MD    ", "RD ", "RD X"}},
      {"v1.2", {"VER", "VER 2", "VERSION"}},
      {"AT YOUR SERVICE", {"KELVO"}},
      {"NEW", {"NEW", "NEW PIC"}},
      {"RELOAD [err 900]", {"RELOAD", "RELOAD EXTRA"}},
      {"LOAD PIC [err 902]", numbers},
      {"LOAD  [err 902]", {"LOAD ,8"}},
      {"LOAD " + long_word + " [err 902]", {"LOAD " + long_word}},
      {"* [err 901]", no_numbers},
      {"* [err 903]", {"HELLO", "ver", " VER", "LOAD,8", "DEVIC", long_word, commas}},
      {"* [err 904]", {"ANIM MAYBE", "ANIM  ON"}},
      {"* [err 905]", {"@8", "@", "DEVICE 8", "DEVICES"}},
      {"* [err 906]", {"MD gfx", "MD " + long_word}},
      {support::kIsWindows ? "" : "* [err 907]", {"RD " + long_word}},  // there it is a name that nothing has
  };
  for (const auto& [reply, lines] : lines_by_reply) {
    for (const std::string& line : lines) {
      const std::string expected = reply.starts_with("*") ? line + reply.substr(1) : reply;
      EXPECT_EQ(Replies(line), expected.empty() ? Lines{} : Lines{expected}) << line.substr(0, 40);
    }
  }
  EXPECT_THROW(Replies("ANIM"), std::logic_error);
  EXPECT_TRUE(prompt.lines.empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ProcessCommandTest, ImportsImagesOfTheFolderOfPictures) {
  support::WriteText(folders.Gfx() / "Pic.png", "");
  EXPECT_EQ(Replies("IMPORT PIC"), Lines{});  // whoever imports replies
  EXPECT_EQ(Replies("IMPORT"), Lines{});
  for (const std::string line : {"IMPORT X", "IMPORT ", "IMPORT ..\\PIC", "IMPORT PIC,8"}) {
    EXPECT_EQ(Replies(line), Lines{line + " [err 902]"});
  }
  const fs::path gfx = folders.Gfx().lexically_relative(folders.Root());
  EXPECT_EQ(imported, (Lines{app::TextFromPath(gfx / "Pic.png"), "?", app::TextFromPath(gfx / "X.PNG"),
                             app::TextFromPath(gfx / ".PNG"), app::TextFromPath(gfx / "PIC,8.PNG")}));
}

TEST_F(ProcessCommandTest, MakesFoldersInOnePlaceAndRemovesThemInAnother) {
  EXPECT_EQ(Replies("MD A B"), Lines{"FOLDER \\AB CREATED"});
  EXPECT_TRUE(fs::is_directory(folders.Root() / "AB"));
  EXPECT_EQ(Replies("MD ab"), Lines{"MD ab [err 906]"});
  EXPECT_EQ(Replies("RD AB"), Lines{});
  EXPECT_TRUE(fs::exists(folders.Root() / "AB"));

  fs::create_directories(folders.Gfx() / "Old/full");
  EXPECT_EQ(Replies("RD OLD"), Lines{"RD OLD [err 907]"});
  fs::remove(folders.Gfx() / "Old/full");
  EXPECT_EQ(Replies("RD O LD"), Lines{"FOLDER \\OLD REMOVED"});
  EXPECT_FALSE(fs::exists(folders.Gfx() / "Old"));
  support::WriteFile(folders.Gfx() / "FILE", {1});
  EXPECT_EQ(Replies("RD FILE"), Lines{});
  EXPECT_TRUE(fs::exists(folders.Gfx() / "FILE"));

  fs::remove_all(folders.Root());
  EXPECT_EQ(Replies("MD X"), Lines{"MD X [err 906]"});
  EXPECT_EQ(Replies("RD X"), Lines{});
}

// What is outside, the fuzz target looks at.
TEST_F(ProcessCommandTest, NamesNeverLeadOutOfTheirFolder) {
  WritePicture(folder / "X.PRG");
  fs::create_directories(folders.Root() / "EMPTY");
  for (const std::string name : {"..", ".", "../X", "..\\X", "/X", "\\X", "C:X", "X/", "NUL", "com1", "LPT9.TXT",
                                 "AUX.", "X.", "A\tB", "X?", "../EMPTY", "A\x7F"}) {
    EXPECT_EQ(Replies("MD " + name), Lines{"MD " + name + " [err 906]"});
    EXPECT_EQ(Replies("RD " + name), Lines{"RD " + name + " [err 907]"});
    EXPECT_EQ(Replies("LOAD " + name), Lines{"LOAD " + name + " [err 902]"});
  }
  EXPECT_EQ(Replies("LOAD ../X,8"), Lines{"LOAD ../X [err 902]"});
  EXPECT_TRUE(fs::is_directory(folders.Root() / "EMPTY"));
}

TEST_F(ProcessCommandTest, LoadsFromGfxAndDevicesInAnyCase) {
  for (const auto& [file, line] : {std::pair{"GFX/lower.prg", "LOAD LOWER"},
                                   {"GFX/ENDING.PRG", "LOAD ENDING.PRG"},
                                   {"GFX/small.prg.PRG", "LOAD small.prg"},
                                   {"GFX/TWO WORDS.PRG", "LOAD TWO WORDS"},
                                   {"DEVICE8/PIC.PRG", "LOAD PIC,8"},
                                   {"Device9/Pic.prg", "LOAD PIC,9"},
                                   {"DEVICE 1E3/PIC.PRG", "LOAD PIC, 1E3"},
                                   {"GFX/PIC.PRG", "LOAD PIC"}}) {
    WritePicture(folders.Root() / file);
    Replies(line);
    EXPECT_EQ(document.file.CurrentFilePath, app::TextFromPath(folders.Root() / file)) << line;
  }
  EXPECT_EQ(prompt.lines, Lines{"LOAD PIC"});
  EXPECT_TRUE(dialogs.folders.empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ProcessCommandTest, AsksForAFileOnlyWhenNoneIsNamed) {
  EXPECT_EQ(Replies("LOAD"), Lines{});
  EXPECT_EQ(dialogs.folders.size(), 1U);
  WritePicture(folders.Gfx() / "PIC.PRG");
  Replies("LOAD PIC");
  document.picture.Bitmap[1] ^= 1;
  EXPECT_EQ(Replies("RELOAD PLEASE"), (Lines{"RELOAD", "LOAD PIC"}));
  EXPECT_FALSE(document.HasUnsavedWork());
  EXPECT_EQ(dialogs.folders.size(), 1U);
  fs::remove(folders.Gfx() / "PIC.PRG");
  EXPECT_EQ(Replies("RELOAD"), (Lines{"RELOAD", "LOAD PIC [err 902]"}));
  EXPECT_EQ(messages.shown, Lines{});
}

// That the line keeps its prompt and that a command is one trimmed line, the fuzz target holds and the window shows.
TEST(InputLine, SendsItsCommandOrNothing) {
  for (const std::string_view none : {">", "> \r \n ", ""}) EXPECT_EQ(SubmittedLine(none), std::nullopt) << none;
  EXPECT_EQ(SubmittedLine(" >V\rE\nR \r\n "), "VER");
  EXPECT_EQ(SubmittedLine(">MD A  B"), "MD A  B");
}

}  // namespace
}  // namespace kelvo::command
