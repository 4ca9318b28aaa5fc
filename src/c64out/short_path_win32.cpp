#include <windows.h>

#include "app/path_text.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {

std::string ShortPath(const std::filesystem::path& path) {
  std::wstring buffer(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');  // with room for the final zero
  buffer.resize(GetShortPathNameW(path.c_str(), buffer.data(), static_cast<DWORD>(buffer.size())));
  return app::TextFromPath(buffer);
}

}  // namespace kelvo::c64out
