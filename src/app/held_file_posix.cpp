#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "app/held_file.h"

namespace kelvo::app {

std::optional<HeldFile> HeldFile::Hold(const std::filesystem::path& file) {
  constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  int descriptor = open(file.c_str(), O_RDWR | kFlags);
  if (descriptor < 0 && errno == EISDIR) descriptor = open(file.c_str(), O_RDONLY | kFlags);
  if (descriptor < 0) return std::nullopt;
  HeldFile held(descriptor);
  if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) return std::nullopt;
  struct stat now {};
  const bool was_removed = fstat(descriptor, &now) != 0 || now.st_nlink == 0;  // by whoever held it before
  return was_removed ? std::nullopt : std::optional(std::move(held));
}

HeldFile::~HeldFile() {
  if (handle_ != kNone) close(static_cast<int>(handle_));
}

}  // namespace kelvo::app
