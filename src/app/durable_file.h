// What standard C++ lacks for safe files: bytes that are on the disk before a call returns.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <system_error>

namespace kelvo::app {

// Makes or overwrites `file` and flushes it to the disk. An empty code means success.
std::error_code WriteDurably(const std::filesystem::path& file, std::span<const std::uint8_t> bytes);

// Renames `from` over `to` in one step that also survives a loss of power. An empty code means success.
std::error_code ReplaceDurably(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace kelvo::app
