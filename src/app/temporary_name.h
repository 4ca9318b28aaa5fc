// The names of files on their way to their place.
#pragma once

#include <filesystem>

namespace kelvo::app {

// A name in `folder` that no other writer takes.
std::filesystem::path TemporaryName(const std::filesystem::path& folder);

// Whether a file is called as TemporaryName() calls one.
bool IsTemporaryName(const std::filesystem::path& file);

// Where the file lies that will be renamed to `target`.
std::filesystem::path FolderOf(const std::filesystem::path& target);

}  // namespace kelvo::app
