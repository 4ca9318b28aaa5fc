#include "app/durable_file.h"

#include <cerrno>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace kelvo::app {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

std::error_code LastError() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

}  // namespace

std::error_code WriteBytes(const fs::path& file, std::span<const std::uint8_t> bytes, Flush flush) {
  HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return LastError();
  DWORD written = 0;
  const bool good = WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                    written == bytes.size() && (flush == Flush::kLater || FlushFileBuffers(handle));
  const std::error_code error = good ? std::error_code() : LastError();
  CloseHandle(handle);
  return error;
}

std::error_code RenameOver(const fs::path& from, const fs::path& to, Flush flush) {
  const DWORD through = flush == Flush::kToDisk ? MOVEFILE_WRITE_THROUGH : 0;
  const bool good = MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | through);
  return good ? std::error_code() : LastError();
}

#else

namespace {

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

// A new file gets the usual rights; one that takes another's place keeps that one's.
void KeepRights(const fs::path& from, const fs::path& to) {
  struct stat old {};
  if (stat(to.c_str(), &old) == 0) chmod(from.c_str(), old.st_mode & 07777);
}

}  // namespace

std::error_code WriteBytes(const fs::path& file, std::span<const std::uint8_t> bytes, Flush flush) {
  const int descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (descriptor < 0) return LastError();
  std::error_code error = WriteAll(descriptor, bytes);
  if (!error && flush == Flush::kToDisk && fsync(descriptor) != 0) error = LastError();
  if (close(descriptor) != 0 && !error) error = LastError();
  return error;
}

std::error_code RenameOver(const fs::path& from, const fs::path& to, Flush flush) {
  if (access(to.c_str(), F_OK) == 0 && access(to.c_str(), W_OK) != 0) return LastError();
  KeepRights(from, to);
  if (rename(from.c_str(), to.c_str()) != 0) return LastError();
  if (flush == Flush::kLater) return {};
  const fs::path folder = to.has_parent_path() ? to.parent_path() : fs::path(".");
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0) {
    fsync(descriptor);
    close(descriptor);
  }
  return {};
}

#endif

}  // namespace kelvo::app
