// Builds with tools that only pretend: what is run in which order, what is said, and what is left on the disk.
#include "c64out/build_compo_pic.h"

#include <gtest/gtest.h>

#include <functional>

#include "app/path_text.h"
#include "c64out/output_settings.h"
#include "files/save_bitmap.h"
#include "support/pictures.h"
#include "support/recorders.h"
#include "support/temp_folder.h"

namespace kelvo::c64out {
namespace {

using support::Lines;

// Writes what each tool would leave, and keeps what it was called with.
class PretendedTools final : public ToolRunner {
 public:
  bool CanRun() const override { return can_run; }
  ToolResult RunAndWait(const ToolCommand& command) override {
    const std::string name = app::FileNamePart(command.tool);
    commands.push_back(name);
    for (const std::string& argument : command.arguments) commands.back() += " " + app::FileNamePart(argument);
    if (name == "tass") sources.push_back(support::ReadText(command.arguments.front()));
    if (name == failing) {
      if (leaves_half) support::WriteText(command.arguments[name == "c1541" ? 0 : command.arguments.size() - 1], "ha");
      return result;
    }
    if (name == "tass" || name == "crush") support::WriteText(command.arguments.back(), command.arguments[0] + " made");
    if (name == "c1541") support::WriteText(command.arguments.front(), "written image");
    return {};
  }
  ToolResult ShowAndWait(const ToolCommand& command) override { return RunAndWait(command); }

  bool can_run = true;
  std::string failing;       // the tool that gives `result` and makes nothing
  bool leaves_half = false;  // or the beginning of its file
  ToolResult result;
  Lines commands;  // paths without their folders
  Lines sources;   // what the assembler read
};

class BuildCompoPicTest : public testing::Test {
 protected:
  BuildCompoPicTest() {
    folders.Create();
    create_directory(folder / "vice");
    create_directory(folder / "art");
    for (const char* tool : {"tass", "crush", "codenet", "empty.d64"})
      support::WriteText(folders.System() / tool, "tool");
    for (const char* tool : {"x64sc", "c1541"}) support::WriteText(folder / "vice" / tool, "tool");
    support::WriteText(folders.System() / "bmpshow.src", "show [bitmap]\n colour [screencolor]\n<CC> net\n");
    support::WriteText(folders.System() / "decrush.tas", "unpack [packedfile]\n");
    settings.Write(kVicePath, " " + app::TextFromPath(folder / "vice") + " ");
    settings.Write(files::kFilePath, "/pictures");
    document.picture = support::RandomPicture(5);
    document.picture.BackgroundColour = *model::C64Colour::FromNumber(11);
    document.file = files::SetFileParameters(app::TextFromPath(folder / "art/My Pic.koa"));
  }

  bool Build(const CompoPicChoice& choice) {
    return BuildCompoPic(document, choice, {folders, settings, clock, log, messages, prompt, tools}) ==
           BuildOutcome::kDone;
  }
  std::string System(std::string_view name) const { return app::TextFromPath(folders.System() / name); }
  Lines FilesIn(const std::filesystem::path& place) const {
    Lines names;
    for (const auto& entry : std::filesystem::directory_iterator(place)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }
  // What SYSTEM holds when no build has left anything.
  const Lines clean_system{"bmpshow.src", "codenet", "crush", "currentbmp.prg", "decrush.tas", "empty.d64", "tass"};

  support::TempFolder folder;
  app::ProgramFolders folders{folder / "program"};
  support::MapSettings settings;
  support::FixedClock clock;
  app::ErrorLog log{folder / "log", clock};
  support::RecordingMessages messages;
  support::RecordingPrompt prompt;
  PretendedTools tools;
  files::Document document;
};

constexpr CompoPicChoice kPrg = kCompoPicEntries[0].choice, kD64 = kCompoPicEntries[1].choice,
                         kVice = kCompoPicEntries[2].choice, kPreview = kCompoPicEntries[3].choice;

TEST_F(BuildCompoPicTest, MakesAPrgBesideThePicture) {
  const files::Document before = document;
  EXPECT_TRUE(Build(kPrg));
  EXPECT_EQ(prompt.lines, (Lines{"CREATING PRG", "--> Compiling source", "--> Crushing source", "--> Adding depacker",
                                 "--> PRG complete."}));
  EXPECT_EQ(tools.commands,
            (Lines{"tass bmpshow.tmp bmpshow.obj", "crush 6 bmpshow.obj bmpshow.pak", "tass decrush.tmp bmpshow.prg"}));
  EXPECT_EQ(tools.sources,
            (Lines{"show " + System("temp.kvp") + "\r\n colour 0B\r\n", "unpack " + System("bmpshow.pak") + "\r\n"}));
  EXPECT_EQ(support::ReadText(folder / "art/My Pic.prg"), System("decrush.tmp") + " made");
  EXPECT_EQ(FilesIn(folders.System()), clean_system);
  EXPECT_EQ(document.picture, before.picture);
  EXPECT_TRUE(document.HasUnsavedWork());
  EXPECT_EQ(settings.Read(files::kFilePath), "/pictures");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuildCompoPicTest, MakesADiskAndShowsIt) {
  settings.Write(kVicePrgName, " A NAME OF TWENTY CHR ");
  EXPECT_TRUE(Build(kVice));
  EXPECT_EQ(prompt.lines.front(), "CREATING D64");
  EXPECT_EQ(prompt.lines[prompt.lines.size() - 2], "--> D64 complete.");
  EXPECT_EQ(prompt.lines.back(), "--> Launching VICE.");
  ASSERT_EQ(tools.commands.size(), 5U);
  EXPECT_EQ(tools.commands[3], "c1541 My Pic.d64 -write bmpshow.prg a.name.of.twenty.prg");
  EXPECT_EQ(tools.commands[4], "x64sc -autostart My Pic.d64:a.name.of.twenty.prg");
  EXPECT_EQ(FilesIn(folder / "art"), (Lines{"My Pic.d64"}));
  EXPECT_EQ(FilesIn(folders.System()), clean_system);
}

TEST_F(BuildCompoPicTest, SendsToTheC64WithoutVice) {
  settings.Write(kVicePath, "/gone");
  settings.Write(kCodenetC64Ip, " 127.0.0.1 ");
  support::WriteText(folder / "art/My Pic.prg", "older");
  EXPECT_TRUE(Build(kPreview));
  EXPECT_EQ(prompt.lines.front(), "CODENET");
  EXPECT_EQ(prompt.lines[4], "--> Sending to 127.0.0.1");
  EXPECT_EQ(prompt.lines.back(), "--> Transfer complete");
  EXPECT_EQ(tools.commands.back(), "codenet -x bmpshow.prg -n 127.0.0.1");
  EXPECT_EQ(tools.sources.front(), "show " + System("temp.kvp") + "\r\n colour 0B\r\n net\r\n");
  EXPECT_TRUE(FilesIn(folder / "art").empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuildCompoPicTest, APrgThatIsNoProgramIsKeptInBackup) {
  support::WriteText(folder / "art/My Pic.prg", "a picture");
  EXPECT_TRUE(Build(kPrg));
  ASSERT_EQ(FilesIn(folders.Backup()).size(), 1U);
  EXPECT_EQ(support::ReadText(folders.Backup() / FilesIn(folders.Backup()).front()), "a picture");
  support::WriteFile(folder / "art/My Pic.prg", {0x01, 0x08, 1, 2});
  EXPECT_TRUE(Build(kPrg));
  EXPECT_EQ(FilesIn(folders.Backup()).size(), 2U);  // the snapshot's backup alone came
}

TEST_F(BuildCompoPicTest, ANameWithoutADotGivesAnEmptyBaseName) {
  document.file = files::SetFileParameters(app::TextFromPath(folder / "art/picture"));
  EXPECT_TRUE(Build(kPrg));
  EXPECT_EQ(FilesIn(folder / "art"), (Lines{".prg"}));
}

TEST_F(BuildCompoPicTest, WithoutAnEmulatorNothingIsBuilt) {
  settings.Write(kVicePath, "");
  EXPECT_FALSE(Build(kPrg));
  settings.Write(kVicePath, app::TextFromPath(folder / "art"));
  EXPECT_FALSE(Build(kD64));
  EXPECT_EQ(messages.shown, (Lines{"VICE path must be specified", "Invalid VICE path", "Invalid VICE path"}));
  EXPECT_TRUE(prompt.lines.empty());
  EXPECT_TRUE(tools.commands.empty());
}

TEST_F(BuildCompoPicTest, WithoutAnInterpreterTheSavedPictureStays) {
  tools.can_run = false;
  EXPECT_FALSE(Build(kPrg));
  EXPECT_EQ(messages.shown, (Lines{"Can't find CMD.EXE"}));
  EXPECT_EQ(prompt.lines.back(), "--> [err 908]");
  EXPECT_TRUE(exists(folders.System() / "temp.kvp"));
  EXPECT_FALSE(exists(folders.System() / "bmpshow.tmp"));
  EXPECT_FALSE(exists(folders.System() / "bmpshow.tmp1"));
}

TEST_F(BuildCompoPicTest, WhateverFailsIsToldAndLeavesTheOlderResult) {
  struct Case {
    const char* what;
    CompoPicChoice choice;
    std::function<void()> break_it;
    const char* said;  // a part of the line before the number
  };
  const auto remove_tool = [this](const char* name) { return [this, name] { remove(folders.System() / name); }; };
  const auto fail = [this](const char* tool, ToolResult result) {
    return [this, tool, result] {
      tools.failing = tool;
      tools.result = result;
    };
  };
  const auto half = [this](const char* tool) {
    return [this, tool] {
      tools.failing = tool;
      tools.result.failure = "killed";
      tools.leaves_half = true;
    };
  };
  const Case cases[] = {
      {"no viewer", kPrg, remove_tool("bmpshow.src"), "bmpshow.src"},
      {"no depacker", kPrg, remove_tool("decrush.tas"), "decrush.tas"},
      {"no placeholder", kPrg, [this] { support::WriteText(folders.System() / "bmpshow.src", "[bitmap]"); },
       "[screencolor]"},
      {"no assembler", kPrg, remove_tool("tass"), "tass: there is no "},
      {"no cruncher", kPrg, remove_tool("crush"), "crush: there is no "},
      {"an error in the source", kPrg, fail("tass", {.failure = "bmpshow.tmp:3: oops"}), "tass: bmpshow.tmp:3: oops"},
      {"nothing made", kPrg, fail("crush", {}), "crush: left no bmpshow.pak"},
      {"picture folder gone", kPrg, [this] { remove_all(folder / "art"); }, "My Pic.prg"},
      {"half an object", kPrg, half("tass"), "tass: killed"},
      {"half packed", kPrg, half("crush"), "crush: killed"},
      {"half a disk", kD64, half("c1541"), "c1541: killed"},
      {"no blank disk", kD64, remove_tool("empty.d64"), "empty.d64"},
      {"disk tool fails", kD64, fail("c1541", {.failure = "ended with code 1"}), "c1541: ended with code 1"},
      {"emulator fails", kVice, fail("x64sc", {.failure = "no ROMs"}), "x64sc: no ROMs"},
      {"no C64 that listens", kPreview, fail("codenet", {.failure = "nobody answers"}), "codenet: nobody answers"},
      {"a name that disks cannot hold", kD64,
       [this] { document.file = files::SetFileParameters(app::TextFromPath(folder / "art/a:b.kvp")); }, "c1541: "},
      {"a name like an option", kD64,
       [this] { document.file = files::SetFileParameters(app::TextFromPath(folder / "art/-format.kvp")); }, "c1541: "},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    const auto kept = tools;
    const files::Document kept_document = document;
    copy(folders.System(), folder / "kept");
    for (const char* older : {"My Pic.prg", "My Pic.d64"}) support::WriteText(folder / "art" / older, "older");
    prompt.lines.clear();
    row.break_it();
    EXPECT_FALSE(Build(row.choice));
    ASSERT_GE(prompt.lines.size(), 2U);
    EXPECT_EQ(prompt.lines.back(), "--> [err 908]");
    const std::string& told = prompt.lines[prompt.lines.size() - 2];
    EXPECT_TRUE(told.starts_with("--> ") && told.find(row.said) != std::string::npos) << told;
    EXPECT_FALSE(exists(folders.System() / "temp.kvp") || exists(folders.System() / "bmpshow.obj") ||
                 exists(folders.System() / "bmpshow.pak") || exists(folders.System() / "bmpshow.prg"));
    if (exists(folder / "art")) {
      EXPECT_EQ(support::ReadText(folder / "art/My Pic.prg"), "older");
      const bool is_image_made = std::string_view(row.what) == "emulator fails";
      EXPECT_EQ(support::ReadText(folder / "art/My Pic.d64"), is_image_made ? "written image" : "older");
      EXPECT_EQ(FilesIn(folder / "art").size(), 2U);
    }
    remove_all(folders.System());
    rename(folder / "kept", folders.System());
    create_directories(folder / "art");
    tools = kept;
    document = kept_document;
  }
}

TEST_F(BuildCompoPicTest, AStoppedBuildIsNoFailure) {
  tools.failing = "crush";
  tools.result.stopped = true;
  EXPECT_FALSE(Build(kPrg));
  EXPECT_EQ(prompt.lines.back(), "--> Build stopped.");
  EXPECT_EQ(FilesIn(folders.System()), clean_system);
  EXPECT_TRUE(FilesIn(folder / "art").empty());
}

}  // namespace
}  // namespace kelvo::c64out
