#include <windows.h>

#include "app/path_text.h"

namespace kelvo::app {

// What is no UTF-8, or no UTF-16, becomes a sign that stands for nothing, and never an exception.
std::filesystem::path PathFromText(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string TextFromPath(const std::filesystem::path& path) {
  const std::wstring wide = std::filesystem::path(path).make_preferred().native();
  const int size = static_cast<int>(wide.size());
  const int bytes = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), bytes, nullptr, nullptr);
  return text;
}

}  // namespace kelvo::app
