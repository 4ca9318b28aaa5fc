// Assembler templates: texts with a placeholder, and lines that are there only when they are asked for.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace kelvo::c64out {

// The lines that are asked for.
struct TemplateMarks {
  bool via_codenet = false;  // "<CC>": the program is started over a network
  bool key_ends = false;     // "<KEY>": a key ends the picture
  bool fades_in = false;     // "<FADE>": the picture fades in
};

struct TemplateFilling {
  std::string_view placeholder;  // case-sensitive, not empty
  std::string_view replacement;
  TemplateMarks marks;
};

// A template's text line by line, each ended by CR LF. A line with a mark that is not asked for is dropped; others lose
// their marks. Every occurrence of the placeholder becomes the replacement, which stays as it is whatever it holds.
// Empty when no line that is left holds the placeholder.
std::optional<std::string> FilledTemplate(std::string_view text, const TemplateFilling& filling);

// The number (from 1) of the line of a template that became line `filled` (from 1) of the result; 0 for none.
int TemplateLineOf(std::string_view text, int filled, const TemplateMarks& marks);

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
