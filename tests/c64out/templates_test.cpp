// Templates and command lines filled in; the program that saves the picture, and what it does when a C64 runs it.
#include <gtest/gtest.h>

#include "app/whole_file.h"
#include "c64/kernal_disk.h"
#include "c64out/disk_ending.h"
#include "c64out/disk_name.h"
#include "c64out/fill_template.h"
#include "c64out/saver_template.h"
#include "c64out/tool_command.h"
#include "support/files.h"
#include "support/platform.h"
#include "support/run_tool.h"

namespace kelvo::c64out {
namespace {

using namespace std::string_literals;

class FillTemplateTest : public testing::Test {
 protected:
  std::string Fill(std::string_view text, bool via_codenet) {
    support::WriteText(folder / "in", text);
    FillTemplate(folder / "in", folder / "out", {"[bitmap]", "/pic.kvp", via_codenet});
    return support::ReadText(folder / "out");
  }
  support::TempFolder folder;
};

TEST_F(FillTemplateTest, ReplacesPlaceholdersAndKeepsNetworkLinesForNetworkBuilds) {
  // A template, and what is made of it without a network and with one.
  for (const auto& [text, local, network] : {
           std::tuple{"[bitmap] [bitmap]\r\n\r\nend", "/pic.kvp /pic.kvp\r\n\r\nend\r\n",
                      "/pic.kvp /pic.kvp\r\n\r\nend\r\n"},
           {"[Bitmap] [bitmap]\n", "[Bitmap] /pic.kvp\r\n", "[Bitmap] /pic.kvp\r\n"},
           {"[bitmap]1\n<CC>[bitmap]2\nx<CC>y<CC>\n", "/pic.kvp1\r\n", "/pic.kvp1\r\n/pic.kvp2\r\nxy\r\n"},
       }) {
    EXPECT_EQ(Fill(text, false), local) << text;
    EXPECT_EQ(Fill(text, true), network) << text;
  }
}

TEST_F(FillTemplateTest, SaysWhatIsWrongWithATemplateAndLeavesNoOldResult) {
  Fill("[bitmap]", false);
  EXPECT_THROW(Fill("no placeholder", false), std::runtime_error);
  EXPECT_FALSE(exists(folder / "out"));
  EXPECT_THROW(Fill("<CC> [bitmap]", false), std::runtime_error);
  EXPECT_THROW(FillTemplate(folder / "gone", folder / "out", {"[bitmap]", "", false}), app::FileError);
}

TEST(ToolCommand, RendersForTheWindowsInterpreter) {
  const ToolCommand command{"C:\\KELVO\\SYSTEM\\TASS.EXE", {"C:\\KELVO\\SYSTEM\\bmpshow.tmp", "", "$cf00"}};
  EXPECT_EQ(command.InterpreterArguments(), "/C C:\\KELVO\\SYSTEM\\TASS.EXE C:\\KELVO\\SYSTEM\\bmpshow.tmp  $cf00");
  for (const auto& [word, told] : {
           std::pair{"a b", "a b"},
           {"a&calc", "a&calc"},
           {"100%\\", "100%KELVO_PERCENT%\\\\"},
       }) {
    const ToolCommand quoted{"C:\\T.EXE", {word, "", "6"}};
    EXPECT_EQ(quoted.InterpreterArguments(), "/C \"\"C:\\T.EXE\" \"" + std::string(told) + "\"  \"6\"\"");
  }
  for (const char* word : {"a\"b", "a\rb", "a\nb"}) {
    EXPECT_THROW((ToolCommand{"c1541.exe", {word}}.InterpreterArguments()), std::runtime_error);
  }
}

TEST(NameOnDisk, IsCutBeforeItsEnding) {
  EXPECT_EQ(NameOnDisk("My.Pic"), "my.pic.prg");
  EXPECT_EQ(NameOnDisk("ABCDEFGHIJKLMNOPQRST"), "abcdefghijklmnop.prg");
  EXPECT_EQ(NameOnDisk(""), ".prg");
}

TEST(NameOnDisk, IsProposedWhereItDoesNotFit) {
  for (const auto& [name, proposed] : {std::pair{"Größe", "groesse"},
                                       {"ÆØÅ þÿ", "aeoa thy"},
                                       {"łódź", "lodz"},
                                       {"$a:b", "a-b"},
                                       {"日本 1", "1"},
                                       {"日", ""},
                                       {"plain", "plain"}}) {
    EXPECT_EQ(ProposedDiskName(name), proposed);
    EXPECT_TRUE(FitsDisk(ProposedDiskName(name)));
    EXPECT_EQ(FitsDisk(name), std::string(name) == "plain") << name;
  }
}

TEST(Assembler, ThatIsNotInstalledSaysWhatToInstall) {
  if (support::kIsWindows) GTEST_SKIP() << "64tass is shipped there";
  const std::string without_any_tool = "PATH=/nowhere \"" KELVO_ASSETS "/system/tass\" in out";
  EXPECT_EQ(support::RunTool("sh", {"-c", without_any_tool}).errors, "64tass is missing: install the package 64tass\n");
}

TEST(SaverTemplate, ConvertsNames) {
  for (const auto& [name, converted] : {
           std::pair{"pic1.x"s, "PIC1.X"s},
           {"a/b.9", "A/B.9"},
           {"A", "!"},
           {"BG-* z", "\"'\r\n\0Z"s},
           {"\xC3\xA9", "\xC9"},  // é becomes É, as one byte of Latin-1
           {"\xE2\x82\xAC", "\x1F"},
       }) {
    EXPECT_EQ(ToC64FileName(name), converted) << name;
  }
  for (const auto& name : {"a\tb"s, "a\0b"s}) EXPECT_THROW(ToC64FileName(name), std::runtime_error);
}

TEST(SaverTemplate, FillsOneKindOfPlaceholderInEachLine) {
  const std::string name = "abcdefghijklmnopqrst", upper = "ABCDEFGHIJKLMNOPQRST";
  for (const auto& [line, filled] : {
           std::pair{"lda #$[filenamelen]"s, "lda #$10"s},
           {"[filename] [filename]", upper + " " + upper},
           {"[end_low] [filename] [end_high]", "[end_low] " + upper + " [end_high]"},
           {"[end_high] [end_low]", "[end_high] 59"},
           {"[FILENAME] [file", "[FILENAME] [file"},
           {"a\r\n\n[end_high]\n", "a\r\n\r\n23"},
       }) {
    EXPECT_EQ(FilledSaver(line, name, 7000), filled + "\r\n");
  }
  EXPECT_EQ(FilledSaver("[end_high]\n[end_low]\n[filenamelen]", "", 100), "08\r\n65\r\n00\r\n");
  EXPECT_EQ(FilledSaver("[filenamelen]", "\xC3\xA9t\xC3\xA9", 100), "03\r\n");
  EXPECT_EQ(FilledSaver("[end_high]", "a", 0xFFFF - 2049), "FF\r\n");
  EXPECT_THROW(FilledSaver("", "a", 0x10000 - 2049), std::runtime_error);
  EXPECT_EQ(FilledSaver("[filename_bytes]", "b-A", 100),
            "$42,$0D,$21,$A0,$A0,$A0,$A0,$A0,$A0,$A0,$A0,$A0,$A0,$A0,$A0,$A0\r\n");
  for (const char* odd : {"my-pic", "a*c", "Bird", "Goat"}) {  // line ends and quotes on the C64
    EXPECT_THROW(FilledSaver(".text \"[filename]\"", odd, 100), std::runtime_error) << odd;
  }
}

class SaverOnTheC64 : public testing::Test {
 protected:
  void SetUp() override {
    if (!support::IsInstalled("64tass")) GTEST_SKIP() << "64tass is not installed";
  }

  app::Bytes Assemble(const std::string& name, std::uintmax_t program_size = 7000) const {
    const auto source = folder_ / "15x1save.tmp", program = folder_ / "15x1save.prg";
    FillSaverTemplate(KELVO_ASSETS "/system/15x1save.src", source, name, program_size);
    const support::ToolRun run = support::RunTool(KELVO_SHARE "/SYSTEM/tass", {source.string(), program.string()});
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.exit_code, 0);
    return support::ReadFile(program);
  }

  // Calls it by SYS, after a program that left decimal mode on. Anything that it leaves changed behind it shows as a
  // fault.
  void Run(const app::Bytes& saver) {
    ASSERT_GT(saver.size(), 2U);
    EXPECT_EQ(saver[0] | saver[1] << 8, 0xCF00);
    EXPECT_LE(saver.size() - 2, 0x100U);
    machine_.Load(saver);
    machine_.LeaveUnclean();
    machine_.Poke(0xFB, 0x12);
    machine_.Poke(0xFC, 0x34);
    EXPECT_EQ(machine_.RunFrom(0xCF00), c64::Machine::Ending::kReturns);
    EXPECT_EQ(machine_.Cpu().stack, machine_.StackAtStart() + 2);
    EXPECT_EQ(machine_.Ram(0x01), 0x37);
    EXPECT_EQ(machine_.Ram(0xFB) | machine_.Ram(0xFC) << 8, 0x3412);
  }

  int Border() const { return machine_.Io(0xD020) & 0x0F; }

  static constexpr int kGreen = 5, kRed = 2;

  support::TempFolder folder_;
  c64::Machine machine_;
  c64::KernalDisk disk_{machine_};
};

// A name that cannot be put between quotes, or within one line, arrives as it stands too.
TEST_F(SaverOnTheC64, SavesOnTheLastDriveUnderAnyNameCutToSixteenBytes) {
  std::string all;
  for (int code = 32; code < 127; ++code) all += static_cast<char>(code);
  for (int code = 160; code < 256; ++code) {
    all += {static_cast<char>(0xC0 | code >> 6), static_cast<char>(0x80 | (code & 63))};
  }
  for (const std::string& name : {all.substr(0, 16), "my-picture*2"s, all}) {
    const app::Bytes saver = Assemble(name);
    std::string expected = ToC64FileName(name).substr(0, 16);
    expected.resize(16, '\xA0');
    ASSERT_EQ(saver.size(), Assemble("a").size());
    EXPECT_EQ(std::string(saver.end() - 16, saver.end()), expected);
  }
  machine_.Poke(0xBA, 9);
  Run(Assemble("BGBG;"));
  EXPECT_EQ(disk_.name, "\"'\"'\x1B");
  EXPECT_EQ(disk_.saves, 1);
  EXPECT_EQ(disk_.device, 9);
  EXPECT_EQ(disk_.start, 0x0801);
  EXPECT_EQ(disk_.end, 0x2359);
  EXPECT_EQ(Border(), kGreen);
}

TEST_F(SaverOnTheC64, ShowsRedWithoutADriveANameOrTheFileOnTheDisk) {
  disk_.present = false;
  machine_.Poke(0xBA, 1);
  Run(Assemble("a"));
  EXPECT_EQ(disk_.device, 8);
  EXPECT_EQ(Border(), kRed);
  disk_.present = true;
  for (const auto& [name, message] : {std::pair{"", disk_.message}, {"a", "63,FILE EXISTS,00,00\r"}}) {
    disk_.message = message;
    machine_.Write(0xD020, kGreen);
    Run(Assemble(name));
    EXPECT_EQ(Border(), kRed);
  }
}

}  // namespace
}  // namespace kelvo::c64out
