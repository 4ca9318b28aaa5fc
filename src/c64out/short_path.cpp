#include "c64out/short_path.h"

#include "app/path_text.h"

#ifdef _WIN32
#include <windows.h>

#include <stdexcept>
#endif

namespace kelvo::c64out {

#ifdef _WIN32

std::string ShortPath(const std::filesystem::path& path) {
  std::wstring buffer(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');  // with room for the final zero
  buffer.resize(GetShortPathNameW(path.c_str(), buffer.data(), static_cast<DWORD>(buffer.size())));
  const std::string text = app::TextFromPath(buffer);
  if (text.find_first_of(" \t,;=") == std::string::npos) return text;
  throw std::runtime_error(text + ": a tool cannot be given this path, which has no short form on its disk");
}

#else

std::string ShortPath(const std::filesystem::path& path) {
  std::error_code ignored;
  return std::filesystem::exists(path, ignored) ? app::TextFromPath(path) : std::string();
}

#endif

std::string WithEnding(const std::string& path, std::string_view from, std::string_view to) {
  return path.ends_with(from) ? path.substr(0, path.size() - from.size()).append(to) : path;
}

}  // namespace kelvo::c64out
