#include "c64out/send_file.h"

#include "app/path_text.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {

namespace {

// A name that begins like an option gets its folder in front.
std::string FileArgument(const CodenetForm& form) {
  const std::filesystem::path file = app::PathFromText(form.file);
  return ShortPath(form.file.starts_with('-') ? "." / file : file);
}

// The loader cannot name a file that is not there: its argument is empty.
std::string WhyItFailed(const CodenetForm& form, const std::string& said) {
  if (form.file.empty()) return "codenet: no file is chosen";
  return FileArgument(form).empty() ? "codenet: " + form.file + ": there is no such file" : said;
}

}  // namespace

ToolCommand SendCommand(const CodenetForm& form, const app::ProgramFolders& folders) {
  return {ShortPath(folders.System() / ToolName("codenet")), CodenetArgumentList(form, FileArgument(form))};
}

std::string SendFile(const CodenetForm& form, const BuildSurroundings& with) {
  constexpr std::string_view kFailed = "--> [err 908]";
  if (!with.runner.CanRun()) {
    with.messages.Warn("Can't find CMD.EXE");
    with.prompt.CommandPromptList(kFailed);
    return "Can't find CMD.EXE";
  }
  const ToolCommand command = SendCommand(form, with.folders);
  std::string failure = "codenet: it is missing from the SYSTEM folder";
  if (!command.tool.empty()) {
    const ToolResult result = with.runner.RunAndWait(command);
    if (result.stopped) return "Transfer stopped.";
    if (result.failure.empty()) return "Transfer complete.";
    failure = WhyItFailed(form, result.failure);
  }
  with.prompt.CommandPromptList("--> " + failure);
  with.prompt.CommandPromptList(kFailed);
  return failure;
}

}  // namespace kelvo::c64out
