#include <windows.h>

#include "app/held_file.h"

namespace kelvo::app {

// Who holds it lets nobody else write, and asks to write.
std::optional<HeldFile> HeldFile::Hold(const std::filesystem::path& file) {
  HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return std::nullopt;
  return HeldFile(reinterpret_cast<std::intptr_t>(handle));
}

HeldFile::~HeldFile() {
  if (handle_ != kNone) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace kelvo::app
