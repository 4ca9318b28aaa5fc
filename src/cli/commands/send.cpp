#include "app/path_text.h"
#include "app/whole_file.h"
#include "c64out/send_file.h"
#include "cli/commands/commands.h"

namespace kelvo::cli {
namespace {

using c64out::CodenetForm;

CodenetForm FormFor(const Arguments& arguments, const app::SettingsStore& settings) {
  CodenetForm form;
  form.host.clear();  // where to is never guessed
  if (arguments.Has(kSettings)) form = c64out::LoadCodenetForm(settings);
  form.file = arguments.operands.front();
  form.host = arguments.Text(kHost, form.host);
  form.port = arguments.Text(kPort, form.port);
  if (arguments.Has(kLoadAt)) {
    form.set_destination = true;
    form.destination = arguments.Text(kLoadAt);
  }
  if (arguments.Has(kRun)) form.execute = c64out::ExecuteChoice::kExecute;
  if (arguments.Has(kJumpTo)) {
    form.execute = c64out::ExecuteChoice::kExecuteAddress;
    form.execute_address = arguments.Text(kJumpTo);
  }
  return form;
}

}  // namespace

ExitCode Send(const Arguments& arguments, const Ports& ports) {
  const CodenetForm form = FormFor(arguments, ChosenSettings(arguments, ports));
  if (form.host.empty()) throw UsageError("where to? Say --host or --settings", arguments.command);
  app::FileSize(app::PathFromText(form.file));  // which throws where there is none
  const c64out::ToolCommand command = c64out::SendCommand(form, app::ProgramFolders(ports.shipped));
  // The loader itself says what went wrong.
  return ports.tools.ShowAndWait(command).failure.empty() ? kDone : kCannot;
}

}  // namespace kelvo::cli
