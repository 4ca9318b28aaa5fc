// Builds with tools that only pretend: what is run in which order, what is said, and what is left on the disk.
#include "c64out/build_compo_pic.h"

#include <gtest/gtest.h>

#include <functional>

#include "app/text.h"
#include "c64out/output_settings.h"
#include "files/save_bitmap.h"
#include "support/pictures.h"
#include "support/program.h"

namespace kelvo::c64out {
namespace {

using support::Lines;

// A program's name without what a platform puts behind it, and with it.
std::string Bare(const std::string& program) {
  return app::ToLower(app::TextFromPath(app::PathFromText(program).stem()));
}
std::string WithBareTools(std::string_view line) {
  std::string bare = app::ToLower(line);
  if (const auto at = bare.find(".exe"); at != std::string::npos) bare.erase(at, 4);
  return bare;
}
std::string Full(const std::string& program) {
  return program + app::TextFromPath(ToolName(program).extension());
}

// Writes what each tool would leave, and keeps what it was called with. What is in the sources, real tools tell.
class PretendedTools final : public ToolRunner {
 public:
  bool CanRun() const override { return can_run; }
  ToolResult RunAndWait(const ToolCommand& command) override {
    const std::string name = Bare(command.tool);
    commands.push_back(name);
    for (const std::string& argument : command.arguments) commands.back() += " " + app::FileNamePart(argument);
    const std::string& output = command.arguments[name == "c1541" ? 0 : command.arguments.size() - 1];
    if (name == failing) {
      if (result.failure == "killed") support::WriteText(output, "ha");
      return result;
    }
    if (name == "tass" || name == "crush") support::WriteText(output, command.arguments[0] + " made");
    if (name == "c1541") support::WriteText(output, "written image");
    return {};
  }
  ToolResult ShowAndWait(const ToolCommand& command) override { return RunAndWait(command); }

  bool can_run = true;
  std::string failing;  // the tool that gives `result`, and makes nothing or, killed, the beginning of its file
  ToolResult result;
  Lines commands;  // paths without their folders
};

struct Scene : support::Program {
  Scene() {
    for (const char* place : {"vice", "art"}) create_directory(folder / place);
    for (const char* tool : {"tass", "crush", "codenet"}) support::WriteText(folders.System() / ToolName(tool), "tool");
    for (const char* tool : {"x64sc", "c1541"}) support::WriteText(folder / "vice" / Full(tool), "tool");
    support::WriteText(folders.System() / "empty.d64", "disk");
    support::WriteText(folders.System() / "bmpshow.src", "[bitmap] [screencolor]\n");
    support::WriteText(folders.System() / "decrush.tas", "[packedfile]\n");
    settings.Write(kVicePath, " " + app::TextFromPath(folder / "vice") + " ");
    settings.Write(files::kFilePath, "/pictures");
    document.picture = support::RandomPicture(5);
    document.picture.BackgroundColour = *model::C64Colour::FromNumber(11);
    document.file = files::SetFileParameters(folder / "art/pic.koa");
  }

  bool Build(const CompoPicChoice& choice) {
    const BuildSurroundings with{{folders, settings, clock, log, messages, prompt}, tools};
    const BuildResult result = BuildCompoPic(document, choice, with);
    return (result.emulator ? ShowInEmulator(*result.emulator, with) : result.outcome) == BuildOutcome::kDone;
  }
  PretendedTools tools;
};

// What SYSTEM holds when no build has left anything.
Lines CleanSystem() {
  Lines names{"bmpshow.src", "currentbmp.prg", "decrush.tas", "empty.d64"};
  for (const char* tool : {"codenet", "crush", "tass"}) names.push_back(app::TextFromPath(ToolName(tool)));
  std::sort(names.begin(), names.end());
  return names;
}

constexpr CompoPicChoice kPrg = kCreatePrg, kD64 = kCreateD64, kVice = kPreviewInVice, kPreview = kPreviewOnC64;

TEST(BuildCompoPic, DoesItsStepsInOrderAndLeavesWhatWasAskedFor) {
  struct Case {
    CompoPicChoice choice;
    const char *picture, *begin;
    Lines said, run;  // behind the steps that all builds have
    Lines left;       // beside the picture
  };
  const std::string on_disk = "a.name.of.twenty.prg";
  for (const Case& row : {
           Case{kPrg, "pic.koa", "CREATING PRG", {"--> PRG complete."}, {}, {"pic.prg"}},
           Case{kPrg, "no dot", "CREATING PRG", {"--> PRG complete."}, {}, {".prg"}},
           Case{kVice,
                "pic.koa",
                "CREATING D64",
                {"--> D64 complete.", "--> Launching VICE."},
                {"c1541 pic.d64 -write bmpshow.prg " + on_disk, "x64sc -autostart pic.d64:" + on_disk},
                {"pic.d64"}},
           Case{kPreview,
                "pic.koa",
                "CODENET",
                {"--> Sending to 127.0.0.1", "--> Transfer complete"},
                {"codenet -x bmpshow.prg -n 127.0.0.1"},
                {}},
       }) {
    SCOPED_TRACE(row.begin);
    Scene scene;
    if (row.choice.ViaCodenet) scene.settings.Write(kVicePath, "/gone");
    scene.settings.Write(kVicePrgName, " A NAME OF TWENTY CHR ");
    scene.settings.Write(kCodenetC64Ip, " 127.0.0.1 ");
    scene.document.file = files::SetFileParameters(scene.folder / "art" / row.picture);
    const files::Document before = scene.document;
    EXPECT_TRUE(scene.Build(row.choice));
    Lines said{row.begin, "--> Compiling source", "--> Crushing source", "--> Adding depacker"};
    said.insert(said.end(), row.said.begin(), row.said.end());
    EXPECT_EQ(scene.prompt.lines, said);
    Lines run{"tass bmpshow.tmp bmpshow.obj", "crush 6 bmpshow.obj bmpshow.pak", "tass decrush.tmp bmpshow.prg"};
    run.insert(run.end(), row.run.begin(), row.run.end());
    EXPECT_EQ(scene.tools.commands, run);
    EXPECT_EQ(support::NamesIn(scene.folder / "art"), row.left);
    EXPECT_EQ(support::NamesIn(scene.folders.System()), CleanSystem());
    EXPECT_TRUE(scene.document.picture == before.picture && scene.document.HasUnsavedWork());
    EXPECT_EQ(scene.settings.Read(files::kFilePath), "/pictures");
    EXPECT_TRUE(scene.messages.shown.empty());
  }
}

TEST(BuildCompoPic, KeepsAPrgThatIsNoProgramInBackup) {
  const app::Bytes program{1, 8, 1, 2};
  app::Bytes more_than_memory = program;
  more_than_memory.resize(65539);
  for (const app::Bytes& older : {program, more_than_memory, {1, 7, 1, 2}, {2, 8, 1, 2}, {1}}) {
    for (const CompoPicChoice& choice : {kPrg, kPreview}) {
      Scene scene;
      support::WriteFile(scene.folder / "art/pic.prg", older);
      EXPECT_TRUE(scene.Build(choice));
      const Lines kept = support::NamesIn(scene.folders.Backup());
      EXPECT_EQ(kept, older == program ? Lines{} : Lines{"pic_2602030907_replaced.prg"});
      EXPECT_EQ(kept.empty() ? program : support::ReadFile(scene.folders.Backup() / kept.front()), older);
    }
  }
}

TEST(BuildCompoPic, GivesUpWithoutAnEmulatorOrAnInterpreter) {
  Scene scene;
  scene.tools.can_run = false;
  EXPECT_FALSE(scene.Build(kPrg));
  EXPECT_EQ(scene.prompt.lines.back(), "--> [err 908]");
  EXPECT_TRUE(exists(scene.folders.System() / "temp.kvp"));  // stays on purpose
  EXPECT_FALSE(exists(scene.folders.System() / "bmpshow.tmp") || exists(scene.folders.System() / "bmpshow.tmp1"));
  scene.prompt.lines.clear();
  for (const std::string& vice : {std::string(), scene.Text("art"), scene.Text("gone")}) {
    scene.settings.Write(kVicePath, vice);
    EXPECT_FALSE(scene.Build(vice.empty() ? kPrg : kD64));
  }
  EXPECT_EQ(scene.messages.shown, (Lines{"Can't find CMD.EXE", "VICE path must be specified", "Invalid VICE path",
                                         "Invalid VICE path", "Invalid VICE path"}));
  EXPECT_TRUE(scene.prompt.lines.empty() && scene.tools.commands.empty());
}

TEST(BuildCompoPic, TellsWhateverFailsAndLeavesTheOlderResult) {
  struct Case {
    CompoPicChoice choice;
    std::filesystem::path gone;  // from the scene's folder
    std::string failing;         // the tool that gives `result`
    ToolResult result;
    const char* said;  // a part of the line before the number
    const char* picture = "pic.koa";
  };
  const std::filesystem::path system = "program/SYSTEM", none;
  for (const Case& row : {
           Case{kPrg, system / "bmpshow.src", "", {}, "bmpshow.src"},
           Case{kPrg, system / ToolName("tass"), "", {}, "tass: there is no "},
           Case{kPrg, none, "tass", {.failure = "killed"}, "tass: killed"},
           Case{kPrg, none, "crush", {.failure = "killed"}, "crush: killed"},
           Case{kPrg, none, "crush", {.stopped = true, .failure = ""}, "--> Build stopped."},
           Case{kPrg, none, "crush", {}, "crush: left no bmpshow.pak"},
           Case{kPrg, system / "decrush.tas", "", {}, "decrush.tas"},
           Case{kPrg, "art", "", {}, "pic.prg"},
           Case{kD64, system / "empty.d64", "", {}, "empty.d64"},
           Case{kD64, none, "c1541", {.failure = "killed"}, "c1541: killed"},
           Case{kD64, none, "", {}, "c1541: ", "a,b.kvp"},  // a name that disks cannot hold
           Case{kD64, none, "", {}, "c1541: ", "-format.kvp"},
           Case{kVice, none, "x64sc", {.failure = "no ROMs"}, "x64sc: no ROMs"},
           Case{kPreview, none, "codenet", {.failure = "nobody answers"}, "codenet: nobody answers"},
       }) {
    SCOPED_TRACE(row.said);
    Scene scene;
    const std::filesystem::path art = scene.folder / "art";
    for (const char* older : {"pic.prg", "pic.d64"}) support::WriteText(art / older, "older");
    if (row.gone != none) remove_all(scene.folder / row.gone);
    scene.tools.failing = row.failing;
    scene.tools.result = row.result;
    scene.document.file = files::SetFileParameters(art / row.picture);
    EXPECT_FALSE(scene.Build(row.choice));
    Lines& lines = scene.prompt.lines;
    const bool is_failure = lines.back() == "--> [err 908]";
    EXPECT_NE(is_failure, scene.tools.result.stopped);
    if (is_failure) lines.pop_back();
    const std::string& told = lines.back();
    EXPECT_TRUE(told.starts_with("--> ") && WithBareTools(told).find(app::ToLower(row.said)) != std::string::npos)
        << told;
    for (const char* work : {"temp.kvp", "bmpshow.obj", "bmpshow.pak", "bmpshow.prg"}) {
      EXPECT_FALSE(exists(scene.folder / system / work)) << work;
    }
    if (!exists(art)) continue;
    EXPECT_EQ(support::NamesIn(art), (Lines{"pic.d64", "pic.prg"}));
    EXPECT_EQ(support::ReadText(art / "pic.prg"), "older");
    EXPECT_EQ(support::ReadText(art / "pic.d64"), row.choice.LaunchVice ? "written image" : "older");
  }
}

}  // namespace
}  // namespace kelvo::c64out
