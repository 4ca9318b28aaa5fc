// What standard C++ lacks for safe files: bytes that are on the disk before a call returns.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <system_error>

#include "app/whole_file.h"

namespace kelvo::app {

// Makes or overwrites `file` and, when asked to, flushes it to the disk. An empty code means success.
std::error_code WriteBytes(const std::filesystem::path& file, std::span<const std::uint8_t> bytes, Flush flush);

// Renames `from` over `to` in one step that, flushed, also survives a loss of power. An empty code means success.
std::error_code RenameOver(const std::filesystem::path& from, const std::filesystem::path& to, Flush flush);

}  // namespace kelvo::app
