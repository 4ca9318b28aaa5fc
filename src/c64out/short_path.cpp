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

}  // namespace kelvo::c64out
