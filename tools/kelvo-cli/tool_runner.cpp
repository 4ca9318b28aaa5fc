#include "tool_runner.h"

#include <QProcess>
#include <QThread>
#include <memory>

namespace kelvo {
namespace {

using c64out::ToolCommand;
using c64out::ToolResult;

constexpr int kLookMilliseconds = 100;

// The first line that speaks of an error, else the first that says anything.
QString TellingLine(const QString& output) {
  const QStringList lines = output.split('\n', Qt::SkipEmptyParts), errors = lines.filter("error", Qt::CaseInsensitive);
  const QStringList telling = errors + lines;
  return telling.isEmpty() ? QString() : telling.first().trimmed();
}

QString WhyItFailed(QProcess& process) {
  if (process.error() == QProcess::FailedToStart) return "could not be started: " + process.errorString();
  if (process.exitStatus() == QProcess::CrashExit) return "crashed";
  if (process.exitCode() == 0) return {};
  const QString line = TellingLine(QString::fromUtf8(process.readAll()));
  return line.isEmpty() ? QString("ended with code %1").arg(process.exitCode()) : line;
}

ToolResult Run(const ToolCommand& command, QProcess::ProcessChannelMode channels,
               const std::atomic<bool>& stop_wanted) {
  QStringList words;
  for (const std::string& word : command.arguments) words << QString::fromStdString(word);
  QProcess process;
  process.setProcessChannelMode(channels);
  process.setStandardInputFile(QProcess::nullDevice());
  process.start(QString::fromStdString(command.tool), words);
  while (!stop_wanted && process.state() != QProcess::NotRunning) process.waitForFinished(kLookMilliseconds);
  if (stop_wanted) {
    process.kill();
    process.waitForFinished();
    return {.stopped = true, .failure = {}};
  }
  return {.stopped = false, .failure = WhyItFailed(process).toStdString()};
}

// QProcess wants a thread of Qt's, whoever asks.
ToolResult RunInThread(const ToolCommand& command, QProcess::ProcessChannelMode channels,
                       const std::atomic<bool>& stop_wanted) {
  ToolResult result;
  const std::unique_ptr<QThread> thread(QThread::create([&] { result = Run(command, channels, stop_wanted); }));
  thread->start();
  thread->wait();
  return result;
}

}  // namespace

ToolResult ToolRunner::RunAndWait(const ToolCommand& command) {
  return RunInThread(command, QProcess::MergedChannels, stop_wanted_);
}

ToolResult ToolRunner::ShowAndWait(const ToolCommand& command) {
  return RunInThread(command, QProcess::ForwardedChannels, stop_wanted_);
}

}  // namespace kelvo
