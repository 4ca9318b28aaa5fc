// Paths as external tools are given them.
#pragma once

#include <filesystem>
#include <string>

namespace kelvo::c64out {

// On Windows the 8.3 short form of an existing path, cut to 255 characters; elsewhere the path itself. The empty text
// for a path that does not exist.
std::string ShortPath(const std::filesystem::path& path);

}  // namespace kelvo::c64out
