// Files read and written whole: all of it or nothing.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <stdexcept>

#include "app/bytes.h"

namespace kelvo::app {

// A file that could not be read or written. The message names the file and what is wrong with it.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The size of a regular file. Throws FileError when it is missing, unreadable or something else (a folder, a pipe).
std::uintmax_t FileSize(const std::filesystem::path& file);

// The whole file, which must be a regular one of at most `most` bytes. Throws FileError.
Bytes ReadWholeFile(const std::filesystem::path& file, std::uintmax_t most);

enum class Flush { kToDisk, kLater };

// Writes a temporary file beside `file`, flushes it to the disk (unless kLater) and renames it over `file`: whatever
// happens in between, either the old file or the new one is there whole. For the user's files: a link is followed, and
// the file keeps its rights; other hard links to it keep the old file. Throws FileError.
void WriteWholeFile(const std::filesystem::path& file, std::span<const std::uint8_t> bytes,
                    Flush flush = Flush::kToDisk);

// The same for a file that the program keeps for itself: it is made anew, never through a link, and for its owner
// alone, whoever may read the picture that it is a copy of. Mostly it can be made again, and waits for no disk.
void WriteOwnFile(const std::filesystem::path& file, std::span<const std::uint8_t> bytes, Flush flush = Flush::kLater);

// WriteOwnFile for a name that no file has yet. False, and nothing is changed, where one has it.
bool MakeOwnFile(const std::filesystem::path& file, std::span<const std::uint8_t> bytes, Flush flush = Flush::kLater);

// Copies a regular file to one of the user's in the same all-or-nothing way, but without waiting for the disk: a copy
// can be made again. Throws FileError.
void CopyWholeFile(const std::filesystem::path& from, const std::filesystem::path& to);

// The most bytes of a file that is copied or kept as a whole.
inline constexpr std::uintmax_t kMostBytesToCopy = 64U << 20;

}  // namespace kelvo::app
