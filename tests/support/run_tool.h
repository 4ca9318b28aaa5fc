// Programs run as a user runs them, with their exit code and what they complain of.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

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

  void Signal(int signal) const;
  ToolRun Wait();

 private:
  int process_ = -1;
  int errors_ = -1;
};

ToolRun RunTool(const std::string& program, const std::vector<std::string>& arguments);
inline bool IsInstalled(const std::string& tool) {
  return RunTool("sh", {"-c", "command -v " + tool}).exit_code == 0;
}

}  // namespace kelvo::support
