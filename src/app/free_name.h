// Names that no file has yet.
#pragma once

#include <filesystem>

namespace kelvo::app {

// `file` with ".old" behind its name, more than once where that is what it takes to find a name that is free.
std::filesystem::path FreeNameBeside(const std::filesystem::path& file);

}  // namespace kelvo::app
