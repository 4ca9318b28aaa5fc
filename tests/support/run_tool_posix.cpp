#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "support/run_tool.h"

extern char** environ;

namespace kelvo::support {

RunningTool::RunningTool(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<char*> words{const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  std::array<int, 2> pipe_ends{};
  if (pipe(pipe_ends.data()) != 0) return;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, pipe_ends[1], STDERR_FILENO);
  posix_spawn_file_actions_addclose(&actions, pipe_ends[0]);
  posix_spawn_file_actions_addclose(&actions, pipe_ends[1]);
  pid_t process = -1;
  if (posix_spawnp(&process, program.c_str(), &actions, nullptr, words.data(), environ) == 0) process_ = process;
  posix_spawn_file_actions_destroy(&actions);
  close(pipe_ends[1]);
  errors_ = pipe_ends[0];
}

RunningTool::~RunningTool() {
  Signal(SIGTERM);
  Wait();
}

void RunningTool::Signal(int signal) const {
  if (process_ > 0) kill(static_cast<pid_t>(process_), signal);
}

ToolRun RunningTool::Wait() {
  ToolRun run;
  if (errors_ >= 0) {
    std::array<char, 512> buffer;
    for (ssize_t size = 0; (size = read(static_cast<int>(errors_), buffer.data(), buffer.size())) > 0;) {
      run.errors.append(buffer.data(), static_cast<std::size_t>(size));
    }
    close(static_cast<int>(errors_));
    errors_ = -1;
  }
  int status = 0;
  if (process_ > 0 && waitpid(static_cast<pid_t>(process_), &status, 0) == process_ && WIFEXITED(status)) {
    run.exit_code = WEXITSTATUS(status);
  }
  process_ = -1;
  return run;
}

bool IsInstalled(const std::string& tool) {
  return RunTool("sh", {"-c", "command -v " + tool}).exit_code == 0;
}

ToolRun RunTool(const std::string& program, const std::vector<std::string>& arguments) {
  return RunningTool(program, arguments).Wait();
}

}  // namespace kelvo::support
