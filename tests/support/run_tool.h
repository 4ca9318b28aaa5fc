// Programs run as a user runs them, with their exit code and what they complain of.
#pragma once

#include <memory>
#include <string>
#include <vector>

class QProcess;

namespace kelvo::support {

struct ToolRun {
  int exit_code = -1;  // -1: the program could not be started, or was ended by a signal
  std::string errors;  // its standard error stream
};

// A program that runs beside the test. It is ended at the latest when this goes out of scope, and its end is waited
// for.
class RunningTool {
 public:
  // `program` is a path, or a name to be looked for like a shell does.
  RunningTool(const std::string& program, const std::vector<std::string>& arguments);
  ~RunningTool();
  RunningTool(const RunningTool&) = delete;
  RunningTool& operator=(const RunningTool&) = delete;

  void Signal(int signal) const;  // on Windows any signal ends it
  ToolRun Wait();

 private:
  std::unique_ptr<QProcess> process_;
};

ToolRun RunTool(const std::string& program, const std::vector<std::string>& arguments);
bool IsInstalled(const std::string& tool);

}  // namespace kelvo::support
