// kelvo-cli: pictures at the command line. The work is src/cli's; `kelvo-cli help` tells how.
#include <QCoreApplication>
#include <atomic>
#include <csignal>

#include "app/path_text.h"
#include "arguments/program_arguments.h"
#include "cli/commands/commands.h"
#include "cli/standard_streams.h"
#include "cli/temporary_folder.h"
#include "editors_settings.h"
#include "tool_runner.h"

namespace {

std::atomic<bool> stop_wanted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may set it");

// A build removes its temporary folder first, unless it is told twice. Whatever else is done can end here and now.
extern "C" void EndOrWantStop(int signal) {
  if (!stop_wanted.exchange(true) && kelvo::cli::TemporaryFolder::AnyIsThere()) return;
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words = kelvo::ProgramArguments(argc, argv);
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // they are for nobody here
  const QCoreApplication application(argc, argv);
  kelvo::cli::MakeStreamsBinary();
  std::signal(SIGINT, EndOrWantStop);
  std::signal(SIGTERM, EndOrWantStop);
  kelvo::ToolRunner tools(stop_wanted);
  kelvo::EditorsSettings settings;
  const std::string here = QCoreApplication::applicationDirPath().toStdString();
  const std::filesystem::path shipped = kelvo::app::PathFromText(here) / KELVO_SHARE_FROM_PROGRAM;
  return kelvo::cli::RunCommandLine(words, {tools, settings, shipped});
}
