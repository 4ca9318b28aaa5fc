// A screen of its own with a window manager, and the hands of a user on it.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace kelvo::end_to_end {

// Starts a program in the background; it is ended with the object.
class Process {
 public:
  explicit Process(const std::vector<std::string>& command);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  void Kill(int signal) const;
  bool IsRunning();

 private:
  pid_t pid_;  // 0: it has ended
};

// Runs a shell command to its end; true when it succeeded.
bool RunCommand(const std::string& command);
void Wait(int milliseconds);

// Xvfb and openbox. DISPLAY is set for everything that is started while it lives.
class Desktop {
 public:
  Desktop();

  // Takes a picture of the screen; the file's ending decides its format.
  void Screenshot(const std::string& file) const;

 private:
  std::string display_;
  Process server_;
  Process window_manager_;
};

}  // namespace kelvo::end_to_end
