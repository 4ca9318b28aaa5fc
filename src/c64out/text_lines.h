// Texts as lines, as templates are read and written.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo::c64out {

using Lines = std::vector<std::string>;

// The lines of a text without their ends, which are LF or CR LF; the last one may lack its own.
Lines LinesOf(std::string_view text);

// Each line followed by CR LF.
std::string JoinedLines(const Lines& lines);

// `text` with every occurrence of `what`, which is not empty, replaced. The replacements are not looked at again.
std::string Replaced(std::string_view text, std::string_view what, std::string_view replacement);

// Whole text files; those that are written are the program's own. Both throw app::FileError, reading also for more than
// 1 MB.
std::string ReadText(const std::filesystem::path& file);
void WriteText(const std::filesystem::path& file, std::string_view text);

}  // namespace kelvo::c64out
