#include "support/run_tool.h"

#include <QProcess>
#include <QStandardPaths>
#include <csignal>

namespace kelvo::support {

RunningTool::RunningTool(const std::string& program, const std::vector<std::string>& arguments)
    : process_(std::make_unique<QProcess>()) {
  QStringList words;
  for (const std::string& argument : arguments) words << QString::fromStdString(argument);
  process_->setStandardInputFile(QProcess::nullDevice());
  process_->setStandardOutputFile(QProcess::nullDevice());
  process_->start(QString::fromStdString(program), words);
  process_->waitForStarted();
}

RunningTool::~RunningTool() {
  Signal(SIGTERM);
  process_->waitForFinished(-1);
}

void RunningTool::Signal([[maybe_unused]] int signal) const {
  if (process_->state() == QProcess::NotRunning) return;
#ifdef _WIN32
  process_->kill();
#else
  ::kill(static_cast<pid_t>(process_->processId()), signal);
#endif
}

ToolRun RunningTool::Wait() {
  process_->waitForFinished(-1);
  const bool has_ended = process_->error() == QProcess::UnknownError && process_->exitStatus() == QProcess::NormalExit;
  return {has_ended ? process_->exitCode() : -1, process_->readAllStandardError().toStdString()};
}

ToolRun RunTool(const std::string& program, const std::vector<std::string>& arguments) {
  return RunningTool(program, arguments).Wait();
}

bool IsInstalled(const std::string& tool) {
  return !QStandardPaths::findExecutable(QString::fromStdString(tool)).isEmpty();
}

}  // namespace kelvo::support
