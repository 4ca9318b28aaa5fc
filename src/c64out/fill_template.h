// Assembler templates: texts with a placeholder, and lines for network builds alone.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace kelvo::c64out {

struct TemplateFilling {
  std::string_view placeholder;  // case-sensitive, not empty
  std::string_view replacement;
  bool via_codenet;
};

// A template's text line by line, each ended by CR LF. A line with "<CC>" is dropped unless `via_codenet`; then it
// loses the marker. Every occurrence of the placeholder becomes the replacement, which stays as it is whatever it
// holds. Empty when no line that is left holds the placeholder.
std::optional<std::string> FilledTemplate(std::string_view text, const TemplateFilling& filling);

// False for a text that would leave a text literal, or its line, in an assembler source: one with a quote or a line
// end.
bool FitsLiteral(std::string_view text);

// A path as a template gets it: its last part alone, which the assembler looks for beside its source, where the whole
// path would leave its literal or look like a part of the template when that is filled in again.
std::string PathInTemplate(std::string_view path);

// FilledTemplate from file to file. Throws app::FileError when a file cannot be read or written, and std::runtime_error
// for a template without the placeholder; the destination is then not there.
void FillTemplate(const std::filesystem::path& source, const std::filesystem::path& destination,
                  const TemplateFilling& filling);

}  // namespace kelvo::c64out
