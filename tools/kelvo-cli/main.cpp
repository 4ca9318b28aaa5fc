// kelvo-cli: pictures at the command line. The work is src/cli's; `kelvo-cli help` tells how.
#include <QCoreApplication>

#include "app/path_text.h"
#include "arguments/program_arguments.h"
#include "cli/commands/commands.h"
#include "cli/standard_streams.h"
#include "editors_settings.h"
#include "tool_runner.h"

int main(int argc, char** argv) {
  const std::vector<std::string> words = kelvo::ProgramArguments(argc, argv);
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // they are for nobody here
  const QCoreApplication application(argc, argv);
  kelvo::cli::MakeStreamsBinary();
  kelvo::ToolRunner tools;
  kelvo::EditorsSettings settings;
  const std::string here = QCoreApplication::applicationDirPath().toStdString();
  const std::filesystem::path shipped = kelvo::app::PathFromText(here) / KELVO_SHARE_FROM_PROGRAM;
  return kelvo::cli::RunCommandLine(words, {tools, settings, shipped});
}
