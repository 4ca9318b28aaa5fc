// Templates of the C64 output with any text in them and any name or path filled in.
#include <algorithm>
#include <optional>
#include <stdexcept>

#include "app/utf8.h"
#include "c64out/disk_ending.h"
#include "c64out/fill_template.h"
#include "c64out/saver_template.h"
#include "c64out/text_lines.h"
#include "input.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kPlaceholders[] = {"[bitmap]", "[screencolor]", "[packedfile]", "[[", "aa"};

std::size_t Occurrences(std::string_view text, std::string_view what) {
  std::size_t count = 0;
  for (auto at = text.find(what); at != std::string_view::npos; at = text.find(what, at + what.size())) ++count;
  return count;
}

void CheckLines(std::string_view text, std::string_view filled) {
  Require(filled.empty() || filled.ends_with("\r\n"), "every line is ended");
  Require(Occurrences(filled, "\n") <= Occurrences(text, "\n") + 1, "no line is added");
}

bool HasMark(const std::string& text) {
  const auto holds = [&](const char* mark) { return text.find(mark) != std::string::npos; };
  return holds("<CC>") || holds("<KEY>") || holds("<FADE>");
}

// A mark that no template holds stands for the replacement, so that what is around it can be looked at.
void CheckViewer(const std::string& text, std::string_view placeholder, const c64out::TemplateMarks& marks) {
  const std::string mark = "\x01mark\x02";
  if (text.find('\x01') != std::string::npos) return;
  const auto filled = c64out::FilledTemplate(text, {placeholder, mark, marks});
  if (!filled) {
    return Require(marks.via_codenet || text.find(placeholder) == std::string::npos || HasMark(text),
                   "a placeholder that stays is found");
  }
  CheckLines(text, *filled);
  Require(filled->find(mark) != std::string::npos, "a filled template holds its replacement");
  Require(filled->find(placeholder) == std::string::npos, "no placeholder is left");
  const auto other = c64out::FilledTemplate(text, {placeholder, placeholder, marks});
  Require(other && c64out::Replaced(*filled, mark, placeholder) == *other, "a replacement goes in as it is");
}

// What stands between the quotes of the only line that `filled` may have; nothing else may be in it.
bool IsOneLiteral(std::string_view filled, char quote) {
  if (!filled.starts_with(quote) || !filled.ends_with(quote + std::string("\r\n"))) return false;
  return filled.substr(1, filled.size() - 4).find_first_of("\"'\r\n") == std::string_view::npos;
}

// A path that is filled in stays in its literal and as it is, also when the next placeholder is filled in.
void CheckPath(const std::string& folder, char quote, const c64out::TemplateMarks& marks) {
  const std::string name = "temp.kvp", path = c64out::PathInTemplate(folder + "/" + name);
  const auto once = c64out::FilledTemplate(quote + std::string("[bitmap]") + quote, {"[bitmap]", path, marks});
  Require(once && IsOneLiteral(*once, quote), "a path stays in its literal");
  Require(once->substr(1, once->size() - 4) == path, "a path goes in whole");
  Require(!c64out::FilledTemplate(*once, {"[screencolor]", "00", marks}), "a path holds no placeholder");
  const auto more = c64out::FilledTemplate(*once + "[screencolor]", {"[screencolor]", "00", marks});
  Require(more && *more == *once + "00\r\n", "a path is no marker");
  Require(path == folder + "/" + name || path == name, "a path leads to its file");
}

// A name as text stays in its literal or is refused; as numbers it is always the same line.
void CheckName(const std::string& name, char quote) {
  const auto filled = [&name](const std::string& line) -> std::optional<std::string> {
    try {
      return c64out::FilledSaver(line, name, 100);
    } catch (const std::runtime_error&) {
      return std::nullopt;
    }
  };
  const auto text = filled(quote + std::string("[filename]") + quote);
  Require(!text || IsOneLiteral(*text, quote), "a name stays in its literal");
  const auto numbers = filled("[filename_bytes]");
  if (!numbers) return;
  Require(numbers->size() == 16 * 4 + 1, "a name is sixteen numbers");
  Require(numbers->find_first_not_of("$,0123456789ABCDEF\r\n") == std::string::npos, "numbers are numbers");
}

void CheckSaver(const std::string& text, const std::string& name, std::uintmax_t program_size) {
  try {
    const std::string filled = c64out::FilledSaver(text, name, program_size);
    Require(program_size + 2049 <= 0xFFFF, "a program has to fit into memory");
    Require(text.find('[') != std::string::npos || filled == c64out::JoinedLines(c64out::LinesOf(text)),
            "lines without a placeholder stay");
    Require(c64out::ToC64FileName(name).size() == app::CharactersOf(name).size(), "a byte for each character");
  } catch (const std::runtime_error&) {
    const bool has_control = std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < ' '; });
    const bool is_text = text.find("[filename]") != std::string::npos;
    Require(has_control || is_text || program_size + 2049 > 0xFFFF, "only these are refused");
  }
}

void CheckNames(const std::string& name) {
  Require(app::CharactersOf(name).size() <= name.size(), "no character has less than a byte");
  Require(app::CharactersOf(c64out::NameOnDisk(name)).size() <= 16 + 4, "a name on the disk fits");
  const auto start = app::FirstCharacters(name, 5);
  Require(name.starts_with(start) && app::CharactersOf(start).size() <= 5, "a beginning has the first characters");
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  const std::string_view placeholder = fuzz::kPlaceholders[input.Below(5)];
  const bool is_wanted = input.Bit();  // every marked line, or none
  const c64out::TemplateMarks marks{is_wanted, is_wanted, is_wanted};
  const std::uintmax_t program_size = input.Byte() * 257U;
  const std::string name = input.Line();
  const std::string text = input.RestAsText();
  fuzz::CheckNames(name);
  fuzz::CheckViewer(text, placeholder, marks);
  fuzz::CheckSaver(text, name, program_size);
  for (const char quote : {'"', '\''}) {
    fuzz::CheckPath(name, quote, marks);
    fuzz::CheckPath(text, quote, marks);
    fuzz::CheckName(name, quote);
  }
  return 0;
}
