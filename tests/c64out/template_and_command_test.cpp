#include <gtest/gtest.h>

#include "app/whole_file.h"
#include "c64out/disk_ending.h"
#include "c64out/fill_template.h"
#include "c64out/short_path.h"
#include "c64out/tool_command.h"
#include "support/pictures.h"
#include "support/run_tool.h"
#include "support/temp_folder.h"

namespace kelvo::c64out {
namespace {

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
  struct Case {
    std::string_view text, local, network;
  };
  for (const Case& row : {
           Case{"a\nb [bitmap]\n", "a\r\nb /pic.kvp\r\n", "a\r\nb /pic.kvp\r\n"},
           Case{"[bitmap] [bitmap]\r\n\r\nend", "/pic.kvp /pic.kvp\r\n\r\nend\r\n", "/pic.kvp /pic.kvp\r\n\r\nend\r\n"},
           Case{"[Bitmap] [bitmap]", "[Bitmap] /pic.kvp\r\n", "[Bitmap] /pic.kvp\r\n"},
           Case{"[bitmap]1\n<CC>[bitmap]2\nx<CC>y<CC>\n", "/pic.kvp1\r\n", "/pic.kvp1\r\n/pic.kvp2\r\nxy\r\n"},
       }) {
    EXPECT_EQ(Fill(row.text, false), row.local) << row.text;
    EXPECT_EQ(Fill(row.text, true), row.network) << row.text;
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
  EXPECT_EQ(command.WindowsCommandLine("c:\\windows\\system32\\CMD.exe"),
            "c:\\windows\\system32\\CMD.exe /C C:\\KELVO\\SYSTEM\\TASS.EXE C:\\KELVO\\SYSTEM\\bmpshow.tmp  $cf00");
  using namespace std::string_literals;
  for (const auto& meddling : {"a&calc"s, "a|b"s, "a>b"s, "%PATH%"s, "a\"b"s, "a\nb"s, "a\0b"s}) {
    EXPECT_THROW((ToolCommand{"c1541.exe", {meddling}}.InterpreterArguments()), std::runtime_error) << meddling;
  }
}

TEST(NameOnDisk, IsCutBeforeItsEnding) {
  EXPECT_EQ(NameOnDisk("My.Pic"), "my.pic.prg");
  EXPECT_EQ(NameOnDisk("ABCDEFGHIJKLMNOPQRST"), "abcdefghijklmnop.prg");
  std::string umlauts;
  for (int i = 0; i < 16; ++i) umlauts += "\u00e4";
  EXPECT_EQ(NameOnDisk(umlauts + "X"), umlauts + ".prg");
  EXPECT_EQ(NameOnDisk(""), ".prg");
}

#ifndef _WIN32
TEST(Assembler, ThatIsNotInstalledSaysWhatToInstall) {
  const std::string without_any_tool = "PATH=/nowhere \"" KELVO_ASSETS "/system/tass\" in out";
  EXPECT_EQ(support::RunTool("sh", {"-c", without_any_tool}).errors, "64tass is missing: install the package 64tass\n");
}
#endif

}  // namespace
}  // namespace kelvo::c64out
