// Disks that are full, and users who may not write. On Linux alone.
#pragma once

#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <optional>

namespace kelvo::support {

// While it lives no file grows beyond so many bytes: to a writer that is a disk that becomes full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signal_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*signal_)(int);
  rlimit before_{};
};

// What `check` finds in a child process that has no more rights than an ordinary user. Empty where a child cannot be
// such a user.
inline std::optional<bool> HoldsForOrdinaryUser(const std::function<bool()>& check) {
  constexpr uid_t kOrdinaryUser = 65534;
  constexpr int kHolds = 0, kDoesNotHold = 1, kCannotTell = 2;
  const pid_t child = fork();
  if (child == 0) {
    const bool is_root = geteuid() == 0;
    if (is_root && (setgroups(0, nullptr) != 0 || setgid(kOrdinaryUser) != 0 || setuid(kOrdinaryUser) != 0)) {
      _exit(kCannotTell);
    }
    _exit(check() ? kHolds : kDoesNotHold);
  }
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) return std::nullopt;
  return WEXITSTATUS(status) == kCannotTell ? std::nullopt : std::optional(WEXITSTATUS(status) == kHolds);
}

}  // namespace kelvo::support
