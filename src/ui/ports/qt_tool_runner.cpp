#include "ui/ports/qt_tool_runner.h"

#include <QEventLoop>
#include <QTemporaryFile>

#include "ui/ports/qt_text.h"
#include "ui/ports/tool_output.h"

namespace kelvo::ui {
namespace {

constexpr qint64 kMostOutput = 4096;  // bytes of what a failing program has printed that are looked at
constexpr int kEndMilliseconds = 2000;

QString WhyItFailed(const QProcess& process, const ToolOutput& output) {
  if (process.error() == QProcess::FailedToStart) return "could not be started: " + process.errorString();
  if (process.exitStatus() == QProcess::CrashExit) return "crashed";
  if (process.exitCode() == 0) return {};
  const QString line = output.TellingLine();
  return line.isEmpty() ? QString("ended with code %1").arg(process.exitCode()) : line;
}

}  // namespace

QtToolRunner::~QtToolRunner() {
  Stop();
}

bool QtToolRunner::CanRun() const {
#ifdef Q_OS_WIN
  return c64out::FindCommandInterpreter().has_value();
#else
  return true;
#endif
}

// True when the process has ended by itself.
bool QtToolRunner::Wait(ToolProcess& process, State state, const std::function<void()>& start) {
  QEventLoop wait;
  // cppcheck-suppress danglingLifetime ; this pointer knows when the loop is gone
  wait_ = &wait;
  connect(&process, &QProcess::finished, &wait, &QEventLoop::quit);
  connect(&process, &QProcess::errorOccurred, &wait, [&](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) wait.quit();
  });
  start();
  process_ = &process;
  SetState(state);
  if (process.state() != QProcess::NotRunning) wait.exec();
  SetState(State::kIdle);
  return process.state() == QProcess::NotRunning;
}

c64out::ToolResult QtToolRunner::RunAndWait(const c64out::ToolCommand& command) {
  ToolOutput output([this](const QString& line) { emit Told(line); });  // the process may add to it until it is gone
  ToolProcess process;
  connect(&process, &QProcess::readyRead, this, [&] { output.Add(process.readAll()); });
  if (Wait(process, State::kWorking, [&] { process.Work(command); })) {
    return {.stopped = false, .failure = FromQt(WhyItFailed(process, output))};
  }
  process.End();
  process.waitForFinished(kEndMilliseconds);
  return {.stopped = true, .failure = {}};
}

// Its output goes into a file: a pipe would break, and end it, when this program ends first.
c64out::ToolResult QtToolRunner::ShowAndWait(const c64out::ToolCommand& command) {
  QTemporaryFile file;
  file.open();
  ToolProcess process;
  is_shown_ended_ = false;
  if (!Wait(process, State::kShowing, [&] { process.Show(command, file.fileName()); })) {
    process.LeaveRunning();
    return {};
  }
  if (is_shown_ended_) return {};
  ToolOutput output;
  output.Add(file.read(kMostOutput));
  return {.stopped = false, .failure = FromQt(WhyItFailed(process, output))};
}

void QtToolRunner::SetState(State state) {
  state_ = state;
  emit StateChanged();
}

void QtToolRunner::Stop() {
  if (wait_) wait_->quit();
}

void QtToolRunner::EndNow() {
  Stop();
  if (IsBusy() && process_->state() != QProcess::NotRunning) process_->End();
}

void QtToolRunner::EndShown() {
  if (!IsShowing()) return;
  is_shown_ended_ = true;
  process_->End();
  process_->waitForFinished(kEndMilliseconds);
}

}  // namespace kelvo::ui
