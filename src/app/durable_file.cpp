#include "app/durable_file.h"

#include <random>
#include <string>

#include "app/folder_entries.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#endif

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTemporaryStart = ".kelvo-", kTemporaryEnd = ".tmp";

fs::path FolderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

fs::path TemporaryName(const fs::path& folder) {
  std::random_device random;
  const std::string number = std::to_string((std::uint64_t{random()} << 32) | random());
  return folder / (std::string(kTemporaryStart) + number + std::string(kTemporaryEnd));
}

// In the system's own characters: not every name can be told in others.
bool IsTemporaryName(const fs::path& file) {
  const fs::path::string_type name = file.filename().native();
  return name.starts_with(fs::path(kTemporaryStart).native()) && name.ends_with(fs::path(kTemporaryEnd).native());
}

}  // namespace

#ifdef _WIN32

namespace {

std::error_code LastError() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

// A folder's own rights, which its files inherit, decide who may read them: private folders make private files.
std::error_code WriteNew(const fs::path& file, std::span<const std::uint8_t> bytes, Flush flush) {
  HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return LastError();
  DWORD written = 0;
  std::error_code error;
  if (!WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)) error = LastError();
  if (!error && written != bytes.size()) error = {ERROR_WRITE_FAULT, std::system_category()};
  if (!error && flush == Flush::kToDisk && !FlushFileBuffers(handle)) error = LastError();
  CloseHandle(handle);
  return error;
}

std::error_code Rename(const fs::path& from, const fs::path& to, const Placing& placing) {
  const DWORD through = placing.flush == Flush::kToDisk ? MOVEFILE_WRITE_THROUGH : 0;
  const DWORD over = placing.must_be_new ? 0 : MOVEFILE_REPLACE_EXISTING;
  if (MoveFileExW(from.c_str(), to.c_str(), over | through)) return {};
  const DWORD error = GetLastError();
  if (error == ERROR_ALREADY_EXISTS) return std::make_error_code(std::errc::file_exists);
  return {static_cast<int>(error), std::system_category()};
}

}  // namespace

std::error_code PlaceFile(const fs::path& target, std::span<const std::uint8_t> bytes, const Placing& placing) {
  const fs::path temporary = TemporaryName(FolderOf(target));
  std::error_code error = WriteNew(temporary, bytes, placing.flush);
  if (!error) error = Rename(temporary, target, placing);
  if (error) DeleteFileW(temporary.c_str());
  return error;
}

std::error_code RenameToNew(const fs::path& from, const fs::path& to) {
  return Rename(from, to, {.flush = Flush::kLater, .must_be_new = true});
}

// A file that is being written cannot be deleted here.
void SweepTemporaryFiles(const fs::path& folder) {
  for (const fs::path& file : EntriesOf(folder)) {
    if (IsTemporaryName(file)) DeleteFileW(file.c_str());
  }
}

bool CanWriteIn(const fs::path& folder) {
  HANDLE handle = CreateFileW(TemporaryName(folder).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  CloseHandle(handle);
  return true;
}

std::error_code AppendText(const fs::path& file, std::string_view text) {
  HANDLE handle = CreateFileW(file.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return LastError();
  DWORD written = 0;
  const bool good = WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  const std::error_code error = good ? std::error_code() : LastError();
  CloseHandle(handle);
  return error;
}

#else

namespace {

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
    const int descriptor = open(file.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) continue;
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) unlink(file.c_str());
    close(descriptor);
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

#endif

}  // namespace kelvo::app
