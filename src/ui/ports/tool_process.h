// A tool while it runs.
#pragma once

#include <QProcess>

#include "c64out/tool_command.h"

namespace kelvo::ui {

// It gets no input, and its two streams are one.
class ToolProcess final : public QProcess {
 public:
  // Starts a tool that does a part of this program's work. It finds KELVO_TOOL in its environment.
  void Work(const c64out::ToolCommand& command);
  // Starts a program that the user looks at, which may outlive this one; what it prints goes into `output`.
  void Show(const c64out::ToolCommand& command, const QString& output);

  // Kills a tool that was started by Work, and all that it has started.
  void End();
  // Lets a program go on when this object ends.
  void LeaveRunning() { setProcessState(NotRunning); }

 private:
  void Start(const c64out::ToolCommand& command, bool ends_with_kelvo);
};

}  // namespace kelvo::ui
