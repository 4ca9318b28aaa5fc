// Programs run as a user runs them, with their exit code and what they complain of.
#pragma once

#ifndef _WIN32

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

namespace kelvo::support {

struct ToolRun {
  int exit_code = -1;  // -1: the program was ended by a signal; 127: it could not be started
  std::string errors;  // its standard error stream
};

// A program that runs beside the test. It is ended at the latest when this goes out of scope, and its end is waited
// for.
class RunningTool {
 public:
  // `program` is a path, or a name to be looked for like a shell does.
  RunningTool(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    std::array<int, 2> pipe_ends{};
    if (pipe(pipe_ends.data()) != 0) return;
    process_ = fork();
    if (process_ == 0) {
      dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
      dup2(pipe_ends[1], STDERR_FILENO);
      for (const int end : pipe_ends) close(end);
      execvp(words[0], words.data());
      _exit(127);
    }
    close(pipe_ends[1]);
    errors_ = pipe_ends[0];
  }
  ~RunningTool() {
    Signal(SIGTERM);
    Wait();
  }
  RunningTool(const RunningTool&) = delete;
  RunningTool& operator=(const RunningTool&) = delete;

  void Signal(int signal) const {
    if (process_ > 0) kill(process_, signal);
  }
  ToolRun Wait() {
    ToolRun run;
    if (process_ <= 0) return run;
    std::array<char, 512> buffer;
    for (ssize_t size = 0; (size = read(errors_, buffer.data(), buffer.size())) > 0;) {
      run.errors.append(buffer.data(), static_cast<std::size_t>(size));
    }
    close(errors_);
    int status = 0;
    if (waitpid(std::exchange(process_, -1), &status, 0) > 0 && WIFEXITED(status)) run.exit_code = WEXITSTATUS(status);
    return run;
  }

 private:
  pid_t process_ = -1;
  int errors_ = -1;
};

inline ToolRun RunTool(const std::string& program, const std::vector<std::string>& arguments) {
  return RunningTool(program, arguments).Wait();
}
inline bool IsInstalled(const std::string& tool) {
  return RunTool("sh", {"-c", "command -v " + tool}).exit_code == 0;
}

}  // namespace kelvo::support

#endif
