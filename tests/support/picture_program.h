// A picture's program, made by the builder with the shipped templates and the real tools.
#pragma once

#include <filesystem>
#include <functional>

#include "app/path_text.h"
#include "app/text.h"
#include "c64out/build_compo_pic.h"
#include "c64out/output_settings.h"
#include "support/program.h"
#include "support/run_tool.h"

namespace kelvo::support {

// How the program will be started: by RUN, or over the network, with the template lines that are meant for it.
enum class StartedBy { kRun, kNetwork };

// Runs every tool but the loader, of which it keeps what it was to send. What a tool leaves can be tampered with.
class RealTools final : public c64out::ToolRunner {
 public:
  bool CanRun() const override { return true; }
  c64out::ToolResult RunAndWait(const c64out::ToolCommand& command) override {
    if (app::ToLower(command.tool).find("codenet") != std::string::npos) {
      sent = ReadFile(app::PathFromText(command.arguments.at(1)));
      return {};
    }
    const ToolRun run = RunTool(command.tool, command.arguments);
    if (tamper) tamper(app::PathFromText(command.arguments.back()));
    return {.failure = run.exit_code == 0 ? "" : "failed: " + run.errors};
  }
  c64out::ToolResult ShowAndWait(const c64out::ToolCommand& command) override { return RunAndWait(command); }

  app::Bytes sent;
  std::function<void(const std::filesystem::path& made)> tamper;
};

struct BuiltProgram {
  app::Bytes program;  // empty when the build failed
  Lines said;
};

// What a user changes before a build.
struct BuildChanges {
  std::function<void(const std::filesystem::path& system)> templates = [](const auto&) {};
  std::function<void(const std::filesystem::path& made)> tools = {};
  std::function<void(app::SettingsStore& settings)> settings = [](const auto&) {};
};

// Builds the program of `picture` in `folder`, which keeps the work files.
inline BuiltProgram BuildChangedProgram(const std::filesystem::path& folder, const model::PictureImage& picture,
                                        const BuildChanges& changes, StartedBy start = StartedBy::kRun) {
  const app::ProgramFolders folders(folder / "program");
  folders.Create();
  folders.Seed(KELVO_SHARE);
  changes.templates(folders.System());
  for (const char* name : {"x64", "x64.exe"}) WriteText(folder / name, "an emulator, to look at");
  Program with;
  with.settings.Write(c64out::kVicePath, app::TextFromPath(folder));
  changes.settings(with.settings);
  RealTools tools;
  tools.tamper = changes.tools;
  const files::Document document{.picture = picture, .file = files::SetFileParameters(folder / "picture.kvp")};
  const c64out::CompoPicChoice choice{.MakePrg = true, .ViaCodenet = start == StartedBy::kNetwork};
  const c64out::BuildResult result = c64out::BuildCompoPic(
      document, choice, {folders, with.settings, with.clock, with.log, with.messages, with.prompt, tools});
  if (result.outcome != c64out::BuildOutcome::kDone) return {{}, with.prompt.lines};
  return {start == StartedBy::kNetwork ? tools.sent : ReadFile(folder / "picture.prg"), with.prompt.lines};
}

// The program with nothing changed.
inline app::Bytes BuildPictureProgram(const std::filesystem::path& folder, const model::PictureImage& picture,
                                      StartedBy start = StartedBy::kRun) {
  return BuildChangedProgram(folder, picture, {}, start).program;
}

}  // namespace kelvo::support
