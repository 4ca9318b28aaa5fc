// What standard C++ lacks for safe files: files that appear whole, with the rights that they should have.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>

#include "app/whole_file.h"

namespace kelvo::app {

// What a file that takes a place gets there.
struct Placing {
  Flush flush = Flush::kToDisk;
  bool is_private = false;   // for its owner alone; else the rights of the file whose place it takes, or the usual ones
  bool must_be_new = false;  // fails with std::errc::file_exists where there is a file already
};

// Writes `bytes` beside `target` and renames them over it: all of it is there in the end, or nothing has changed. A
// `target` that is a link is replaced itself. An empty code means success.
std::error_code PlaceFile(const std::filesystem::path& target, std::span<const std::uint8_t> bytes,
                          const Placing& placing);

// Renames a file, but not over another one: then it fails with std::errc::file_exists. (On a system that cannot tell,
// it may replace one that another program makes at that very moment.) An empty code means success.
std::error_code RenameToNew(const std::filesystem::path& from, const std::filesystem::path& to);

// Removes what programs that were killed in PlaceFile left in `folder`, and folders that have such a name (but not on
// Windows). What another program is writing now, or holds, stays.
void SweepTemporaryFiles(const std::filesystem::path& folder);

// Whether files can be made in `folder`. Leaves none there.
bool CanWriteIn(const std::filesystem::path& folder);

// Adds `text` to the end of `file` in one piece, making a file for its owner alone where there is none. A link is not
// followed. An empty code means success.
std::error_code AppendText(const std::filesystem::path& file, std::string_view text);

}  // namespace kelvo::app
