#include "support/faulty_disk.h"

#ifdef __linux__
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace kelvo::support {
namespace {

constexpr uid_t kOrdinaryUser = 65534;
constexpr int kHolds = 0, kDoesNotHold = 1, kCannotTell = 2;

void Write(const char* file, const std::string& text) {
  std::ofstream(file) << text;
}

// Root makes mounts in a namespace of its own; others become root in one, where the system allows that.
bool EnterOwnMounts() {
  const std::string user = std::to_string(geteuid()), group = std::to_string(getegid());
  if (unshare(CLONE_NEWNS) != 0) {
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    Write("/proc/self/setgroups", "deny");
    Write("/proc/self/uid_map", "0 " + user + " 1");
    Write("/proc/self/gid_map", "0 " + group + " 1");
  }
  return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

}  // namespace

SmallDisk::SmallDisk(std::filesystem::path folder, std::size_t bytes) : folder_(std::move(folder)) {
  static const bool may_mount = EnterOwnMounts();
  const std::string size = "size=" + std::to_string(bytes);
  is_there_ = may_mount && mount("none", folder_.c_str(), "tmpfs", 0, size.c_str()) == 0;
}

SmallDisk::~SmallDisk() {
  if (is_there_) umount2(folder_.c_str(), MNT_DETACH);
}

bool SmallDisk::MakeReadOnly() const {
  return mount(nullptr, folder_.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

void SmallDisk::FillUp() const {
  std::ofstream filler(folder_ / "filler", std::ios::binary);
  const std::string block(4096, 'x');
  while (filler) filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush();
}

void SmallDisk::MakeRoom() const {
  std::filesystem::remove(folder_ / "filler");
}

std::optional<bool> HoldsForOrdinaryUser(const std::function<bool()>& check) {
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
#endif
