#include "ui/qt_tool_runner.h"

#include <QEventLoop>
#include <QTemporaryFile>

#include "ui/qt_text.h"

#ifndef Q_OS_WIN
#include <unistd.h>

#include <csignal>
#endif

namespace kelvo::ui {
namespace {

constexpr qint64 kMostOutput = 4096;  // bytes of a failing tool's output that are looked at
constexpr int kLongestLine = 200, kEndMilliseconds = 2000;

// A child that may outlive this object.
class Child final : public QProcess {
 public:
  void LeaveRunning() { setProcessState(NotRunning); }
};

void SetCommand(QProcess& process, const c64out::ToolCommand& command) {
#ifdef Q_OS_WIN
  process.setProgram(ToQt(c64out::FindCommandInterpreter().value_or("")));
  process.setNativeArguments(ToQt(command.InterpreterArguments()));
#else
  process.setProgram(ToQt(command.tool));
  QStringList arguments;
  for (const std::string& argument : command.arguments) arguments << ToQt(argument);
  process.setArguments(arguments);
  // A session of its own, so that it can be ended together with whatever it starts.
  process.setChildProcessModifier([] { setsid(); });
#endif
}

// `process` has been started.
void Kill(QProcess& process) {
#ifdef Q_OS_WIN
  QProcess::execute("taskkill", {"/PID", QString::number(process.processId()), "/T", "/F"});
#else
  ::kill(static_cast<pid_t>(-process.processId()), SIGKILL);
#endif
  process.kill();
}

// The line of the output that tells most: the first that speaks of an error, else the first that says anything.
QString TellingLine(const QByteArray& output) {
  const QStringList lines = QString::fromUtf8(output).split('\n');
  const QStringList errors = lines.filter("error", Qt::CaseInsensitive);
  for (const QString& line : errors + lines) {
    if (!line.trimmed().isEmpty()) return line.trimmed().left(kLongestLine);
  }
  return {};
}

QString WhyItFailed(const QProcess& process, const QByteArray& output) {
  if (process.error() == QProcess::FailedToStart) return "could not be started: " + process.errorString();
  if (process.exitStatus() == QProcess::CrashExit) return "crashed";
  if (process.exitCode() == 0) return {};
  const QString line = TellingLine(output);
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

c64out::ToolResult QtToolRunner::Wait(QProcess& process, const c64out::ToolCommand& command, State state) {
  QEventLoop wait;
  // cppcheck-suppress danglingLifetime ; this pointer knows when the loop is gone
  wait_ = &wait;
  connect(&process, &QProcess::finished, &wait, &QEventLoop::quit);
  connect(&process, &QProcess::errorOccurred, &wait, [&](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) wait.quit();
  });
  process.setStandardInputFile(QProcess::nullDevice());
  SetCommand(process, command);
  process.start();
  process_ = &process;
  SetState(state);
  if (process.state() != QProcess::NotRunning) wait.exec();
  SetState(State::kIdle);
  return {.stopped = process.state() != QProcess::NotRunning, .failure = {}};
}

c64out::ToolResult QtToolRunner::RunAndWait(const c64out::ToolCommand& command) {
  QProcess process;
  QByteArray output;
  process.setProcessChannelMode(QProcess::MergedChannels);
  connect(&process, &QProcess::readyRead, this, [&] {
    const QByteArray part = process.readAll();
    output += part.left(kMostOutput - output.size());
  });
  c64out::ToolResult result = Wait(process, command, State::kWorking);
  if (result.stopped) {
    Kill(process);
    process.waitForFinished(kEndMilliseconds);
  } else {
    result.failure = FromQt(WhyItFailed(process, output));
  }
  return result;
}

// Its output goes into a file: a pipe would break, and end it, when this program ends first.
c64out::ToolResult QtToolRunner::ShowAndWait(const c64out::ToolCommand& command) {
  QTemporaryFile output;
  Child process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  if (output.open()) process.setStandardOutputFile(output.fileName());
  c64out::ToolResult result = Wait(process, command, State::kShowing);
  if (result.stopped) {
    process.LeaveRunning();
  } else {
    result.failure = FromQt(WhyItFailed(process, output.read(kMostOutput)));
  }
  return {.stopped = false, .failure = result.failure};
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
  if (IsBusy() && process_->state() != QProcess::NotRunning) Kill(*process_);
}

}  // namespace kelvo::ui
