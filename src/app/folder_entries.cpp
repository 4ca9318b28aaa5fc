#include "app/folder_entries.h"

#include <system_error>

namespace kelvo::app {

namespace fs = std::filesystem;

std::vector<fs::path> EntriesOf(const fs::path& folder) {
  std::vector<fs::path> entries;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; entry != end; entry.increment(error)) {
    entries.push_back(entry->path());
  }
  return entries;
}

}  // namespace kelvo::app
