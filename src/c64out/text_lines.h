// Text files as lines, as templates are read and written.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kelvo::c64out {

using Lines = std::vector<std::string>;

// The lines of a text file, which may end with LF or CR LF. Throws app::FileError, also for more than 1 MB.
Lines ReadLines(const std::filesystem::path& file);

// Writes each line followed by CR LF. Throws app::FileError.
void WriteLines(const std::filesystem::path& file, const Lines& lines);

}  // namespace kelvo::c64out
