// Assembler templates: texts with a placeholder, and lines for network builds alone.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace kelvo::c64out {

// Copies a template line by line; each line ends with CR LF afterwards. Every occurrence of `placeholder`, which is
// case-sensitive, becomes `replacement`. A line with "<CC>" is dropped unless `via_codenet`; then it loses the marker.
// Throws app::FileError when a file cannot be read or written, and std::runtime_error when no line that was written
// held the placeholder; the destination is then not there.
void FillTemplate(const std::filesystem::path& source, const std::filesystem::path& destination,
                  std::string_view placeholder, std::string_view replacement, bool via_codenet);

// `text` with every occurrence of `what` replaced.
std::string Replaced(std::string_view text, std::string_view what, std::string_view replacement);

}  // namespace kelvo::c64out
