// Files read and written whole: all of it or nothing.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <stdexcept>
#include <vector>

namespace kelvo::app {

// A file that could not be read or written. The message names the file and what is wrong with it.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Bytes = std::vector<std::uint8_t>;

// The size of a regular file. Throws FileError when it is missing, unreadable or something else (a folder, a pipe).
std::uintmax_t FileSize(const std::filesystem::path& file);

// The whole file, which must be a regular one of at most `most` bytes. Throws FileError.
Bytes ReadWholeFile(const std::filesystem::path& file, std::uintmax_t most);

enum class Flush { kToDisk, kLater };

// Writes a temporary file beside `file`, flushes it to the disk (unless kLater) and renames it over `file`: whatever
// happens in between, either the old file or the new one is there whole. A link is followed. Throws FileError.
void WriteWholeFile(const std::filesystem::path& file, std::span<const std::uint8_t> bytes,
                    Flush flush = Flush::kToDisk);

// Copies a regular file over `to` in the same all-or-nothing way, but without waiting for the disk: a copy can be made
// again. Throws FileError.
void CopyWholeFile(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace kelvo::app
