// Disks that are full or write-protected, and users who may not write. On Linux alone.
#pragma once

#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <optional>

#include "support/files.h"

namespace kelvo::support {

// Root makes mounts in a namespace of its own; others become root in one, where the system allows that.
inline bool EnterOwnMounts() {
  const std::string user = std::to_string(geteuid()), group = std::to_string(getegid());
  if (unshare(CLONE_NEWNS) != 0) {
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    WriteText("/proc/self/setgroups", "deny");
    WriteText("/proc/self/uid_map", "0 " + user + " 1");
    WriteText("/proc/self/gid_map", "0 " + group + " 1");
  }
  return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// A disk of its own, mounted on a folder that is there; only this program sees it.
class SmallDisk {
 public:
  SmallDisk(std::filesystem::path folder, std::size_t bytes) : folder_(std::move(folder)) {
    static const bool may_mount = EnterOwnMounts();
    const std::string size = "size=" + std::to_string(bytes);
    is_there_ = may_mount && mount("none", folder_.c_str(), "tmpfs", 0, size.c_str()) == 0;
  }
  ~SmallDisk() {
    if (is_there_) umount2(folder_.c_str(), MNT_DETACH);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  // False where the machine lets nobody mount anything.
  bool IsThere() const { return is_there_; }
  bool MakeReadOnly() const { return mount(nullptr, folder_.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0; }
  // Writes one more file until nothing fits.
  void FillUp() const {
    std::ofstream filler(folder_ / "filler", std::ios::binary);
    const std::string block(4096, 'x');
    while (filler) filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush();
  }
  void MakeRoom() const { std::filesystem::remove(folder_ / "filler"); }

 private:
  std::filesystem::path folder_;
  bool is_there_;
};

// What `check` finds in a child process that has no more rights than an ordinary user. Empty where a child cannot be
// such a user.
inline std::optional<bool> HoldsForOrdinaryUser(const std::function<bool()>& check) {
  constexpr uid_t kOrdinaryUser = 65534;
  constexpr int kHolds = 0, kDoesNotHold = 1, kCannotTell = 2;
  const pid_t child = fork();
  if (child == 0) {
    if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(kOrdinaryUser) != 0 || setuid(kOrdinaryUser) != 0)) {
      _exit(kCannotTell);
    }
    _exit(check() ? kHolds : kDoesNotHold);
  }
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) return std::nullopt;
  if (WIFEXITED(status) && WEXITSTATUS(status) == kCannotTell) return std::nullopt;
  return WIFEXITED(status) && WEXITSTATUS(status) == kHolds;
}

}  // namespace kelvo::support
