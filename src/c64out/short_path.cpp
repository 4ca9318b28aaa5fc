#include "c64out/short_path.h"

#include "app/path_text.h"

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#include <array>
#endif

namespace kelvo::c64out {

#ifdef _WIN32

std::string ShortPath(const std::filesystem::path& path) {
  std::array<char, 255> buffer{};
  const DWORD length = GetShortPathNameA(path.string().c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
  return {buffer.data(), std::min<std::size_t>(length, buffer.size())};
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
