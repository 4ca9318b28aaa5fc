// Paths as the texts that people see, type and store.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kelvo::app {

// Path texts are UTF-8 everywhere in the program, whatever the platform's own encoding; those made of
// paths have the platform's separators.
std::filesystem::path PathFromText(std::string_view text);
std::string TextFromPath(const std::filesystem::path& path);

// The text before the last separator (`/`, on Windows also `\`); empty when there is none.
std::string FolderPart(std::string_view path);

// The text after the last separator; the whole text when there is none.
std::string FileNamePart(std::string_view path);

// The last `.` and what follows it, in lower case (ASCII letters); empty when the file name has none.
std::string LowerExtension(std::string_view path);

}  // namespace kelvo::app
