// Builds with tools that only pretend: what is run in which order, what is said, and what is left on the disk.
#include "c64out/build_compo_pic.h"

#include <gtest/gtest.h>

#include <functional>

#include "app/text.h"
#include "c64out/output_settings.h"
#include "c64out/short_path.h"
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

// Writes what each tool would leave, and keeps what it was called with.
class PretendedTools final : public ToolRunner {
 public:
  bool CanRun() const override { return can_run; }
  ToolResult RunAndWait(const ToolCommand& command) override {
    const std::string name = Bare(command.tool);
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

struct Scene : support::Program {
  Scene() {
    for (const char* place : {"vice", "art"}) create_directory(folder / place);
    for (const char* tool : {"tass", "crush", "codenet"}) support::WriteText(folders.System() / ToolName(tool), "tool");
    for (const char* tool : {"x64sc", "c1541"}) support::WriteText(folder / "vice" / Full(tool), "tool");
    support::WriteText(folders.System() / "empty.d64", "disk");
    support::WriteText(folders.System() / "bmpshow.src", "show [bitmap]\n colour [screencolor]\n<CC> net\n");
    support::WriteText(folders.System() / "decrush.tas", "unpack [packedfile]\n");
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
  // As tools are given it.
  std::string System(std::string_view name) const {
    return app::TextFromPath(app::PathFromText(ShortPath(folders.System())) / name);
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

class BuildCompoPicTest : public testing::Test, public Scene {};

constexpr CompoPicChoice kPrg = kCreatePrg, kD64 = kCreateD64, kVice = kPreviewInVice, kPreview = kPreviewOnC64;

TEST(BuildCompoPic, DoesItsStepsInOrderAndLeavesWhatWasAskedFor) {
  struct Case {
    CompoPicChoice choice;
    const char* begin;
    Lines said, run;  // behind the steps that all builds have
    Lines left;       // beside the picture
  };
  const std::string on_disk = "a.name.of.twenty.prg";
  for (const Case& row : {
           Case{kPrg, "CREATING PRG", {"--> PRG complete."}, {}, {"pic.prg"}},
           Case{kVice,
                "CREATING D64",
                {"--> D64 complete.", "--> Launching VICE."},
                {"c1541 pic.d64 -write bmpshow.prg " + on_disk, "x64sc -autostart pic.d64:" + on_disk},
                {"pic.d64"}},
           Case{kPreview,
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
    const files::Document before = scene.document;
    EXPECT_TRUE(scene.Build(row.choice));
    Lines said{row.begin, "--> Compiling source", "--> Crushing source", "--> Adding depacker"};
    said.insert(said.end(), row.said.begin(), row.said.end());
    EXPECT_EQ(scene.prompt.lines, said);
    Lines run{"tass bmpshow.tmp bmpshow.obj", "crush 6 bmpshow.obj bmpshow.pak", "tass decrush.tmp bmpshow.prg"};
    run.insert(run.end(), row.run.begin(), row.run.end());
    EXPECT_EQ(scene.tools.commands, run);
    const std::string network = row.choice.ViaCodenet ? " net\r\n" : "";
    EXPECT_EQ(scene.tools.sources, (Lines{"show " + scene.System("temp.kvp") + "\r\n colour 0B\r\n" + network,
                                          "unpack " + scene.System("bmpshow.pak") + "\r\n"}));
    EXPECT_EQ(support::NamesIn(scene.folder / "art"), row.left);
    EXPECT_EQ(support::NamesIn(scene.folders.System()), CleanSystem());
    EXPECT_EQ(scene.document.picture, before.picture);
    EXPECT_TRUE(scene.document.HasUnsavedWork());
    EXPECT_EQ(scene.settings.Read(files::kFilePath), "/pictures");
    EXPECT_TRUE(scene.messages.shown.empty());
  }
}

TEST_F(BuildCompoPicTest, TakesANameWithoutAnEnding) {
  document.file = files::SetFileParameters(folder / "art/no dot");
  EXPECT_TRUE(Build(kPrg));
  EXPECT_EQ(support::ReadText(folder / "art/.prg"), System("decrush.tmp") + " made");
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
      const std::string copy = "pic_" + app::BackupStamp(scene.clock.Now()) + "_replaced.prg";
      const auto backup = scene.folders.Backup();
      EXPECT_EQ(support::NamesIn(backup), older == program ? Lines{} : Lines{copy});
      EXPECT_EQ(support::ReadFile(backup / copy), older == program ? app::Bytes{} : older);
    }
  }
}

TEST_F(BuildCompoPicTest, GivesUpWithoutAnEmulatorOrAnInterpreter) {
  tools.can_run = false;
  EXPECT_FALSE(Build(kPrg));
  EXPECT_EQ(prompt.lines.back(), "--> [err 908]");
  EXPECT_TRUE(exists(folders.System() / "temp.kvp"));  // stays on purpose
  EXPECT_FALSE(exists(folders.System() / "bmpshow.tmp") || exists(folders.System() / "bmpshow.tmp1"));
  prompt.lines.clear();
  settings.Write(kVicePath, "");
  EXPECT_FALSE(Build(kPrg));
  settings.Write(kVicePath, app::TextFromPath(folder / "art"));
  EXPECT_FALSE(Build(kD64));
  EXPECT_EQ(messages.shown,
            (Lines{"Can't find CMD.EXE", "VICE path must be specified", "Invalid VICE path", "Invalid VICE path"}));
  EXPECT_TRUE(prompt.lines.empty());
  EXPECT_TRUE(tools.commands.empty());
}

using Break = std::function<void(Scene&)>;

Break Without(const std::filesystem::path& file) {
  return [file](Scene& scene) { remove(scene.folders.System() / file); };
}

// `tool` gives `result`; where it was killed, it leaves the beginning of its file.
Break Fails(const char* tool, const ToolResult& result) {
  return [tool, result](Scene& scene) {
    scene.tools.failing = tool;
    scene.tools.result = result;
    scene.tools.leaves_half = result.failure == "killed";
  };
}

Break Named(const char* picture) {
  return [picture](Scene& scene) { scene.document.file = files::SetFileParameters(scene.folder / "art" / picture); };
}

TEST(BuildCompoPic, TellsWhateverFailsAndLeavesTheOlderResult) {
  struct Case {
    CompoPicChoice choice;
    Break break_it;
    const char* said;  // a part of the line before the number
  };
  const Break no_folder = [](Scene& scene) { remove_all(scene.folder / "art"); };
  for (const Case& row : {
           Case{kPrg, Without("bmpshow.src"), "bmpshow.src"},
           Case{kPrg, Without(ToolName("tass")), "tass: there is no "},
           Case{kPrg, Fails("tass", {.failure = "killed"}), "tass: killed"},
           Case{kPrg, Fails("crush", {.failure = "killed"}), "crush: killed"},
           Case{kPrg, Fails("crush", {.stopped = true, .failure = ""}), "--> Build stopped."},
           Case{kPrg, Fails("crush", {}), "crush: left no bmpshow.pak"},
           Case{kPrg, Without("decrush.tas"), "decrush.tas"},
           Case{kPrg, no_folder, "pic.prg"},
           Case{kD64, Without("empty.d64"), "empty.d64"},
           Case{kD64, Fails("c1541", {.failure = "killed"}), "c1541: killed"},
           Case{kD64, Named("a,b.kvp"), "c1541: "},  // a name that disks cannot hold
           Case{kD64, Named("-format.kvp"), "c1541: "},
           Case{kVice, Fails("x64sc", {.failure = "no ROMs"}), "x64sc: no ROMs"},
           Case{kPreview, Fails("codenet", {.failure = "nobody answers"}), "codenet: nobody answers"},
       }) {
    SCOPED_TRACE(row.said);
    Scene scene;
    const std::filesystem::path art = scene.folder / "art", system = scene.folders.System();
    for (const char* older : {"pic.prg", "pic.d64"}) support::WriteText(art / older, "older");
    row.break_it(scene);
    EXPECT_FALSE(scene.Build(row.choice));
    Lines& lines = scene.prompt.lines;
    const bool is_failure = lines.back() == "--> [err 908]";
    EXPECT_NE(is_failure, scene.tools.result.stopped);
    if (is_failure) lines.pop_back();
    const std::string& told = lines.back();
    EXPECT_TRUE(told.starts_with("--> ") && WithBareTools(told).find(app::ToLower(row.said)) != std::string::npos)
        << told;
    for (const char* work : {"temp.kvp", "bmpshow.obj", "bmpshow.pak", "bmpshow.prg"}) {
      EXPECT_FALSE(exists(system / work)) << work;
    }
    if (!exists(art)) continue;
    EXPECT_EQ(support::NamesIn(art), (Lines{"pic.d64", "pic.prg"}));
    EXPECT_EQ(support::ReadText(art / "pic.prg"), "older");
    EXPECT_EQ(support::ReadText(art / "pic.d64"), row.choice.LaunchVice ? "written image" : "older");
  }
}

}  // namespace
}  // namespace kelvo::c64out
