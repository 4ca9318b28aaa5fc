// What lies in a folder, read without an error that would have to be caught.
#pragma once

#include <filesystem>
#include <vector>

namespace kelvo::app {

// The paths of all entries, in no order. Those that were found before reading failed; none for a folder that cannot be
// read at all.
std::vector<std::filesystem::path> EntriesOf(const std::filesystem::path& folder);

}  // namespace kelvo::app
