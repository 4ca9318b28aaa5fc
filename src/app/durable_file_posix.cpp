#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

#include "app/durable_file.h"
#include "app/folder_entries.h"
#include "app/held_file.h"
#include "app/temporary_name.h"

namespace kelvo::app {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kUsualRights = 0666, kPrivateRights = 0600, kGroupRights = 0070;

std::error_code LastError() {
  return {errno, std::generic_category()};
}

std::error_code WriteAll(int descriptor, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return LastError();
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return {};
}

// Where a file without a name can be found to be given one.
constexpr const char* kOwnFiles = "/proc/self/fd/";

// A file on its way to its place. It has no name where the system allows that, so a program that is killed leaves
// nothing behind; else it is locked for as long as it is written, which tells it from one that was left behind.
class Temporary {
 public:
  Temporary(const fs::path& folder, mode_t rights) : folder_(folder) {
#ifdef O_TMPFILE
    if (access(kOwnFiles, X_OK) == 0) {
      descriptor_ = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, rights);
    }
#endif
    if (descriptor_ < 0) {
      name_ = TemporaryName(folder);
      descriptor_ = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, rights);
      if (descriptor_ < 0) {
        error_ = LastError();
        name_.clear();
      }
    }
    if (descriptor_ >= 0) flock(descriptor_, LOCK_EX);
  }
  ~Temporary() {
    if (!name_.empty()) unlink(name_.c_str());
    if (descriptor_ >= 0) close(descriptor_);
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;

  const std::error_code& Error() const {
    return error_;
  }
  int Descriptor() const {
    return descriptor_;
  }

  std::error_code MoveTo(const fs::path& target, bool must_be_new) {
    if (name_.empty() && LinkTo(target)) return {};
    if (name_.empty() && (must_be_new || !NameIt())) return LastError();
    std::error_code error;
    if (must_be_new) {
      error = RenameToNew(name_, target);
    } else if (rename(name_.c_str(), target.c_str()) != 0) {
      error = LastError();
    }
    if (!error) name_.clear();
    return error;
  }

 private:
  // False where a file is there already.
  bool LinkTo(const fs::path& place) const {
    const std::string self = kOwnFiles + std::to_string(descriptor_);
    return linkat(AT_FDCWD, self.c_str(), AT_FDCWD, place.c_str(), AT_SYMLINK_FOLLOW) == 0;
  }
  bool NameIt() {
    const fs::path name = TemporaryName(folder_);
    if (!LinkTo(name)) return false;
    name_ = name;
    return true;
  }

  fs::path folder_, name_;
  int descriptor_ = -1;
  std::error_code error_;
};

// The file whose place is taken hands on its rights, and its group where that may be; else the group's rights end, for
// they would become another group's.
void KeepRights(int descriptor, const struct stat& old) {
  mode_t rights = old.st_mode & 0777;
  if (fchown(descriptor, static_cast<uid_t>(-1), old.st_gid) != 0) rights &= ~kGroupRights;
  fchmod(descriptor, rights);
}

void FlushFolder(const fs::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

std::error_code PlaceFile(const fs::path& target, std::span<const std::uint8_t> bytes, const Placing& placing) {
  struct stat old {};
  const bool keeps_rights = !placing.is_private && stat(target.c_str(), &old) == 0;
  if (keeps_rights && access(target.c_str(), W_OK) != 0) return LastError();
  const fs::path folder = FolderOf(target);
  Temporary temporary(folder, placing.is_private ? kPrivateRights : kUsualRights);
  if (temporary.Error()) return temporary.Error();
  if (keeps_rights) KeepRights(temporary.Descriptor(), old);
  if (const std::error_code error = WriteAll(temporary.Descriptor(), bytes)) return error;
  if (placing.flush == Flush::kToDisk && fsync(temporary.Descriptor()) != 0) return LastError();
  if (const std::error_code error = temporary.MoveTo(target, placing.must_be_new)) return error;
  if (placing.flush == Flush::kToDisk) FlushFolder(folder);
  return {};
}

std::error_code RenameToNew(const fs::path& from, const fs::path& to) {
#ifdef RENAME_NOREPLACE
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return {};
  if (errno != EINVAL && errno != ENOSYS) return LastError();
#endif
  if (access(to.c_str(), F_OK) == 0) return std::make_error_code(std::errc::file_exists);
  return rename(from.c_str(), to.c_str()) == 0 ? std::error_code() : LastError();
}

void SweepTemporaryFiles(const fs::path& folder) {
  for (const fs::path& file : EntriesOf(folder)) {
    if (!IsTemporaryName(file)) continue;
    std::error_code ignored;
    if (const auto held = HeldFile::Hold(file)) fs::remove_all(file, ignored);
  }
}

bool CanWriteIn(const fs::path& folder) {
  return !Temporary(folder, kPrivateRights).Error();
}

std::error_code AppendText(const fs::path& file, std::string_view text) {
  const int descriptor =
      open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kPrivateRights);
  if (descriptor < 0) return LastError();
  const std::error_code error = WriteAll(descriptor, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
  close(descriptor);
  return error;
}

}  // namespace kelvo::app
