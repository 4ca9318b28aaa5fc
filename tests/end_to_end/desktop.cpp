#include "end_to_end/desktop.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

namespace kelvo::end_to_end {
namespace {

std::string SetDisplay(const std::string& display) {
  setenv("DISPLAY", display.c_str(), 1);
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  return display;
}

}  // namespace

Process::Process(const std::vector<std::string>& command) : pid_(fork()) {
  if (pid_ != 0) return;
  const int nowhere = open("/dev/null", O_RDWR);
  for (const int stream : {0, 1, 2}) dup2(nowhere, stream);
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(127);
}

Process::~Process() {
  if (!IsRunning()) return;
  Kill(SIGTERM);
  waitpid(pid_, nullptr, 0);
}

void Process::Kill(int signal) const {
  if (pid_ != 0) kill(pid_, signal);
}

bool Process::IsRunning() {
  if (pid_ != 0 && waitpid(pid_, nullptr, WNOHANG) != 0) pid_ = 0;
  return pid_ != 0;
}

bool RunCommand(const std::string& command) {
  return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

void Wait(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

Desktop::Desktop()
    : display_(SetDisplay(":" + std::to_string(1000 + getpid() % 30000))),
      server_({"Xvfb", display_, "-screen", "0", "1024x768x24", "-nolisten", "tcp"}),
      window_manager_([this] {
        for (int round = 0; round < 100 && !std::filesystem::exists("/tmp/.X11-unix/X" + display_.substr(1)); ++round) {
          Wait(50);
        }
        return std::vector<std::string>{"openbox"};
      }()) {
  Wait(500);
}

void Desktop::Screenshot(const std::string& file) const {
  RunCommand("import -display " + display_ + " -depth 8 -window root '" + file + "'");
}

}  // namespace kelvo::end_to_end
