// Names of files: those that a person types, the entries that they find, and those that no file has yet.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kelvo::app {

// True for a name that stays inside its folder and that every platform takes: no separator, no drive letter, no "." or
// "..", no control character, nothing that Windows keeps for its devices (NUL, COM1, with or without an ending), none
// of its forbidden characters, and no dot or space at the end, which Windows would drop.
bool IsPlainName(std::string_view name);

// The entry of `folder` that is called `name`, whatever the case of its ASCII letters: the one of exactly that name if
// there is one, else always the same one of several. `folder` / `name` when there is none or the folder cannot be read.
std::filesystem::path EntryOf(const std::filesystem::path& folder, std::string_view name);

// `stem` and `ending` as one name, the stem cut at a character so that the whole is no longer than the 255 bytes that
// file systems take.
std::string FittingName(std::string_view stem, std::string_view ending);

// `file` with ".old" behind its name, more than once where that is what it takes to find a name that is free. A name
// that would become too long loses characters before the endings.
std::filesystem::path FreeNameBeside(const std::filesystem::path& file);

// A file of `folder` that is called `stem`, `mark` and `ending`, with "_2", "_3"... behind the mark where that is what
// it takes. A stem that is too long loses its last characters.
std::filesystem::path FreeNameIn(const std::filesystem::path& folder, std::string_view stem, std::string_view mark,
                                 std::string_view ending);

}  // namespace kelvo::app
