// Names that no file has yet.
#pragma once

#include <filesystem>
#include <string_view>

namespace kelvo::app {

// `file` with ".old" behind its name, more than once where that is what it takes to find a name that is free. A name
// that would become too long loses characters before the endings.
std::filesystem::path FreeNameBeside(const std::filesystem::path& file);

// A file of `folder` that is called `stem`, `mark` and `ending`, with "_2", "_3"... behind the mark where that is what
// it takes. A stem that is too long loses its last characters.
std::filesystem::path FreeNameIn(const std::filesystem::path& folder, std::string_view stem, std::string_view mark,
                                 std::string_view ending);

}  // namespace kelvo::app
