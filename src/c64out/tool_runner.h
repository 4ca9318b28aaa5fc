// The port that runs external tools.
#pragma once

#include <string>

#include "c64out/tool_command.h"

namespace kelvo::c64out {

// How a tool ended. `failure` says why it could not be started, what it said, or its exit code; it is empty when the
// tool ended with 0 or was stopped by the user.
struct ToolResult {
  bool stopped = false;
  std::string failure;
};

class ToolRunner {
 public:
  virtual ~ToolRunner() = default;

  // False where the platform starts tools through a command interpreter and there is none.
  virtual bool CanRun() const = 0;

  // Returns when the tool has ended; the windows stay alive meanwhile. A tool that the user stops is ended.
  virtual ToolResult RunAndWait(const ToolCommand& command) = 0;

  // The same for a program that the user looks at and closes: one that is no longer waited for is left running.
  virtual ToolResult ShowAndWait(const ToolCommand& command) = 0;
};

}  // namespace kelvo::c64out
