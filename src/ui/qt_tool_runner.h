// External tools as child processes.
#pragma once

#include <QObject>
#include <QPointer>
#include <QProcess>

#include "c64out/tool_runner.h"

class QEventLoop;

namespace kelvo::ui {

// One tool runs at a time. The wait is an event loop of its own, so every window stays alive. A tool gets no input, and
// what it prints goes to nobody unless it fails.
class QtToolRunner final : public QObject, public c64out::ToolRunner {
  Q_OBJECT

 public:
  ~QtToolRunner() override;

  bool CanRun() const override;
  c64out::ToolResult RunAndWait(const c64out::ToolCommand& command) override;
  c64out::ToolResult ShowAndWait(const c64out::ToolCommand& command) override;

  // Ends the wait: a tool is ended with all that it started, a program that the user looks at is left running.
  void Stop();
  bool IsShowing() const { return is_showing_; }

 signals:
  // A program is there for the user to look at, from now on or no longer.
  void ShowingChanged();

 private:
  void SetShowing(bool showing);
  c64out::ToolResult Wait(QProcess& process, const c64out::ToolCommand& command);

  QPointer<QEventLoop> wait_;
  bool is_showing_ = false;
};

}  // namespace kelvo::ui
