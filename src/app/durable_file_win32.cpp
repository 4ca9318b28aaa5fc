#include <windows.h>

#include <string>

#include "app/durable_file.h"
#include "app/folder_entries.h"
#include "app/temporary_name.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

std::error_code CodeOf(DWORD error) {
  return {static_cast<int>(error), std::system_category()};
}

std::error_code LastError() {
  return CodeOf(GetLastError());
}

std::error_code WriteAll(HANDLE handle, const void* bytes, std::size_t size) {
  DWORD written = 0;
  if (!WriteFile(handle, bytes, static_cast<DWORD>(size), &written, nullptr)) return LastError();
  return written == size ? std::error_code() : CodeOf(ERROR_WRITE_FAULT);
}

std::error_code WriteNew(const fs::path& file, std::span<const std::uint8_t> bytes, Flush flush) {
  HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return LastError();
  std::error_code error = WriteAll(handle, bytes.data(), bytes.size());
  if (!error && flush == Flush::kToDisk && !FlushFileBuffers(handle)) error = LastError();
  CloseHandle(handle);
  return error;
}

// NUL, COM1 and their like, whatever folder and ending they are written with.
bool IsDevice(const fs::path& file) {
  std::wstring full(GetFullPathNameW(file.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(file.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full.starts_with(L"\\\\.\\");
}

// The file whose place is taken hands on its rights, and whether it is hidden. One that is read-only keeps its place.
std::error_code KeepRights(const fs::path& temporary, const fs::path& old) {
  const DWORD attributes = GetFileAttributesW(old.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return {};
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) return CodeOf(ERROR_ACCESS_DENIED);
  DWORD size = 0;
  GetFileSecurityW(old.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::string rights(size, '\0');
  if (GetFileSecurityW(old.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size)) {
    SetFileSecurityW(temporary.c_str(), DACL_SECURITY_INFORMATION, rights.data());
  }
  SetFileAttributesW(temporary.c_str(), attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
  return {};
}

// The system says no more than "denied" for a file that another program has open.
DWORD WhyDenied(const fs::path& file) {
  constexpr DWORD kAllMay = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  HANDLE handle = CreateFileW(file.c_str(), DELETE, kAllMay, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  const DWORD error = handle == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_ACCESS_DENIED;
  if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
  return error == ERROR_SHARING_VIOLATION ? error : ERROR_ACCESS_DENIED;
}

// A virus scanner or an indexer may hold a file for a moment.
DWORD MoveOver(const fs::path& from, const fs::path& to, DWORD flags) {
  constexpr int kTries = 20;
  constexpr DWORD kMillisecondsBetween = 20;
  for (int tries = 1;; ++tries) {
    if (MoveFileExW(from.c_str(), to.c_str(), flags)) return ERROR_SUCCESS;
    DWORD error = GetLastError();
    if (error == ERROR_ACCESS_DENIED) error = WhyDenied(to);
    if (error != ERROR_SHARING_VIOLATION || tries == kTries) return error;
    Sleep(kMillisecondsBetween);
  }
}

std::error_code Rename(const fs::path& from, const fs::path& to, const Placing& placing) {
  const DWORD through = placing.flush == Flush::kToDisk ? MOVEFILE_WRITE_THROUGH : 0;
  const DWORD over = placing.must_be_new ? 0 : MOVEFILE_REPLACE_EXISTING;
  const DWORD error = MoveOver(from, to, over | through);
  if (error == ERROR_ALREADY_EXISTS) return std::make_error_code(std::errc::file_exists);
  return CodeOf(error);
}

}  // namespace

// Private files have the rights of their folder, which they inherit: it lies in the user's own, or where the user put a
// portable copy, whose files must be readable on another machine too.
std::error_code PlaceFile(const fs::path& target, std::span<const std::uint8_t> bytes, const Placing& placing) {
  if (IsDevice(target)) return CodeOf(ERROR_INVALID_NAME);
  const fs::path temporary = TemporaryName(FolderOf(target));
  std::error_code error = WriteNew(temporary, bytes, placing.flush);
  if (!error && !placing.is_private) error = KeepRights(temporary, target);
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
  const std::error_code error = WriteAll(handle, text.data(), text.size());
  CloseHandle(handle);
  return error;
}

}  // namespace kelvo::app
