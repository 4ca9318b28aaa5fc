#include "app/file_name.h"

#include <algorithm>
#include <array>
#include <string>
#include <system_error>

#include "app/path_text.h"
#include "app/text.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

bool IsForbidden(char c) {
  constexpr std::string_view kForbidden = "/\\:*?\"<>|\x7F";
  return static_cast<unsigned char>(c) < ' ' || kForbidden.find(c) != std::string_view::npos;
}

// Windows looks at what stands before the first dot, without the spaces behind it.
bool NamesDevice(std::string_view name) {
  constexpr std::array<std::string_view, 6> kDevices{"con", "prn", "aux", "nul", "conin$", "conout$"};
  constexpr std::array<std::string_view, 2> kPorts{"com", "lpt"};
  const std::string stem = ToLower(Trimmed(name.substr(0, name.find('.'))));
  if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
  return stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9' &&
         std::find(kPorts.begin(), kPorts.end(), stem.substr(0, 3)) != kPorts.end();
}

}  // namespace

bool IsPlainName(std::string_view name) {
  return !name.empty() && name.back() != '.' && name.back() != ' ' &&
         std::none_of(name.begin(), name.end(), IsForbidden) && !NamesDevice(name);
}

fs::path EntryOf(const fs::path& folder, std::string_view name) {
  fs::path exact = folder / PathFromText(name);
  std::error_code error;
  if (fs::exists(fs::symlink_status(exact, error))) return exact;
  const std::string wanted = ToLower(name);
  fs::path found;
  for (fs::directory_iterator entry(folder, error), end; entry != end; entry.increment(error)) {
    if (ToLower(TextFromPath(entry->path().filename())) == wanted) found = std::max(found, entry->path());
  }
  return found.empty() ? exact : found;
}

}  // namespace kelvo::app
