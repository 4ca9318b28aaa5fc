#include "c64out/send_file.h"

#include "app/path_text.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {

ToolCommand SendCommand(const CodenetForm& form, const app::ProgramFolders& folders) {
  return {ShortPath(folders.System() / ToolName("codenet")),
          CodenetArgumentList(form, ShortPath(app::PathFromText(form.file)))};
}

std::string SendFile(const CodenetForm& form, const SendSurroundings& with) {
  constexpr std::string_view kFailed = "--> [err 908]";
  if (!with.runner.CanRun()) {
    with.messages.Warn("Can't find CMD.EXE");
    with.prompt.CommandPromptList(kFailed);
    return "Can't find CMD.EXE";
  }
  const ToolCommand command = SendCommand(form, with.folders);
  const ToolResult result = command.tool.empty()
                                ? ToolResult{.failure = "codenet: it is missing from the SYSTEM folder"}
                                : with.runner.RunAndWait(command);
  if (result.stopped) return "Transfer stopped.";
  if (result.failure.empty()) return "Transfer complete.";
  with.prompt.CommandPromptList("--> " + result.failure);
  with.prompt.CommandPromptList(kFailed);
  return result.failure;
}

}  // namespace kelvo::c64out
