// External tools as child processes.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "c64out/tool_runner.h"
#include "ui/ports/tool_process.h"

class QEventLoop;

namespace kelvo::ui {

// One tool runs at a time. The wait is an event loop of its own, so every window stays alive. What a tool
// prints goes to nobody unless it fails, or somebody listens.
class QtToolRunner final : public QObject, public c64out::ToolRunner {
  Q_OBJECT

 public:
  ~QtToolRunner() override;

  bool CanRun() const override;
  c64out::ToolResult RunAndWait(const c64out::ToolCommand& command) override;
  c64out::ToolResult ShowAndWait(const c64out::ToolCommand& command) override;

  // Ends the wait: a tool is ended with all that it started, a program that the user looks at is left running. On Linux
  // a tool (but not what it started) also ends when this program is killed.
  void Stop();
  // The same for a program that is about to end: the tool is ended here and now, because no wait may return any more.
  void EndNow();
  // Ends the program that the user looks at. Its wait ends as if the user had closed it.
  void EndShown();

  // A tool is at work, or a program that the user looks at is waited for.
  bool IsBusy() const { return state_ == State::kWorking; }
  bool IsShowing() const { return state_ == State::kShowing; }

 signals:
  void StateChanged();
  // A tool at work has printed a line.
  void Told(const QString& line);

 private:
  enum class State { kIdle, kWorking, kShowing };
  void SetState(State state);
  bool Wait(ToolProcess& process, State state, const std::function<void()>& start);

  QPointer<QEventLoop> wait_;
  QPointer<ToolProcess> process_;  // the one that is waited for
  State state_ = State::kIdle;
  bool is_shown_ended_ = false;  // by EndShown
};

}  // namespace kelvo::ui
