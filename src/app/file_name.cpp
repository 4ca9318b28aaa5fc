#include "app/file_name.h"

#include <algorithm>
#include <array>
#include <string>
#include <system_error>

#include "app/folder_entries.h"
#include "app/path_text.h"
#include "app/text.h"
#include "app/utf8.h"

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

bool IsTaken(const fs::path& name) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(name, ignored));
}

}  // namespace

bool IsPlainName(std::string_view name) {
  return !name.empty() && name.back() != '.' && name.back() != ' ' &&
         std::none_of(name.begin(), name.end(), IsForbidden) && !NamesDevice(name);
}

fs::path EntryOf(const fs::path& folder, std::string_view name) {
  fs::path exact = folder / PathFromText(name);
  const std::string wanted = ToLower(name);
  fs::path found;
  for (const fs::path& entry : EntriesOf(folder)) {
    if (entry.filename() == exact.filename()) return exact;
    if (ToLower(TextFromPath(entry.filename())) == wanted) found = std::max(found, entry);
  }
  return found.empty() ? exact : found;
}

std::string FittingName(std::string_view stem, std::string_view ending) {
  constexpr std::size_t kMostBytes = 255;
  const std::size_t room = kMostBytes - std::min(ending.size(), kMostBytes);
  for (std::size_t characters = room; stem.size() > room; --characters) stem = FirstCharacters(stem, characters);
  return std::string(stem) + std::string(ending);
}

fs::path FreeNameBeside(const fs::path& file) {
  const std::string stem = TextFromPath(file.filename());
  std::string ending;
  fs::path name;
  do {
    ending += ".old";
    name = file.parent_path() / PathFromText(FittingName(stem, ending));
  } while (IsTaken(name));
  return name;
}

fs::path FreeNameIn(const fs::path& folder, std::string_view stem, std::string_view mark, std::string_view ending) {
  const auto named = [&](const std::string& number) {
    return folder / PathFromText(FittingName(stem, std::string(mark) + number + std::string(ending)));
  };
  fs::path name = named("");
  for (int number = 2; IsTaken(name); ++number) name = named("_" + std::to_string(number));
  return name;
}

}  // namespace kelvo::app
