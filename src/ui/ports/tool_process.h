// A tool while it runs.
#pragma once

#include <QProcess>
#include <memory>

#include "c64out/tool_command.h"

namespace kelvo::ui {

// In the environment of a tool at work and of all that it starts.
inline constexpr const char* kToolMark = "KELVO_TOOL";

// It gets no input, and its two streams are one.
class ToolProcess final : public QProcess {
 public:
  // Starts a tool that does a part of this program's work. It finds kToolMark in its environment.
  void Work(const c64out::ToolCommand& command);
  // Starts a program that the user looks at, which may outlive this one; what it prints goes into `output`.
  void Show(const c64out::ToolCommand& command, const QString& output);

  // Kills what was started, and all that it has started.
  void End();
  // Lets a program go on when this object ends.
  void LeaveRunning() { setProcessState(NotRunning); }

 private:
  enum class Purpose { kWork, kShow };
  void Start(const c64out::ToolCommand& command, Purpose purpose);
  // What each platform does in its own way.
  void SetCommand(const c64out::ToolCommand& command, Purpose purpose);
  void EndGroup();

  std::shared_ptr<void> job_;  // on Windows: the program with all that it starts
};

}  // namespace kelvo::ui
