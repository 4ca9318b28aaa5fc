#include <windows.h>

#include "ui/ports/console.h"

namespace kelvo::ui {
namespace {

// A program with windows has no console of its own, and is given a stream only where that is a file or a pipe.
HANDLE OpenStream(Stream stream) {
  HANDLE given = GetStdHandle(stream == Stream::kOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
  if (GetFileType(given) != FILE_TYPE_UNKNOWN) return given;
  AttachConsole(ATTACH_PARENT_PROCESS);
  return CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                     OPEN_EXISTING, 0, nullptr);
}

}  // namespace

void Print(const QString& text, Stream stream) {
  HANDLE handle = OpenStream(stream);
  if (handle == INVALID_HANDLE_VALUE) return;
  DWORD mode = 0, written = 0;
  if (GetConsoleMode(handle, &mode)) {
    WriteConsoleW(handle, text.utf16(), static_cast<DWORD>(text.size()), &written, nullptr);
  } else {
    const QByteArray bytes = text.toUtf8();
    WriteFile(handle, bytes.constData(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  }
}

}  // namespace kelvo::ui
