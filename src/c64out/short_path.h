// Paths as external tools are given them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kelvo::c64out {

// On Windows the 8.3 short form of an existing path; elsewhere the path itself. The empty text for a path that does not
// exist. Where a disk of Windows keeps no short forms, it is the long one, with whatever blanks it holds.
std::string ShortPath(const std::filesystem::path& path);

// `path` with `from` at its end replaced by `to`: the name of a tool's output beside its input.
std::string WithEnding(const std::string& path, std::string_view from, std::string_view to);

}  // namespace kelvo::c64out
