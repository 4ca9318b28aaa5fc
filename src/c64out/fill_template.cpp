#include "c64out/fill_template.h"

#include <stdexcept>
#include <utility>

#include "app/path_text.h"
#include "c64out/text_lines.h"

namespace kelvo::c64out {
namespace {

constexpr std::pair<std::string_view, bool TemplateMarks::*> kMarks[] = {
    {"<CC>", &TemplateMarks::via_codenet}, {"<KEY>", &TemplateMarks::key_ends}, {"<FADE>", &TemplateMarks::fades_in}};
constexpr std::string_view kEndsLiteral = "\"'\r\n";
constexpr std::string_view kBeginsMark = "[<";  // a placeholder, or the marker of a line

// A line without its marks; empty when one of them is not asked for.
std::optional<std::string> WithoutMarks(std::string line, const TemplateMarks& marks) {
  for (const auto& [mark, wanted] : kMarks) {
    if (line.find(mark) == std::string::npos) continue;
    if (!(marks.*wanted)) return std::nullopt;
    line = Replaced(line, mark, "");
  }
  return line;
}

}  // namespace

std::optional<std::string> FilledTemplate(std::string_view text, const TemplateFilling& filling) {
  Lines filled;
  bool is_found = false;
  for (const std::string& line : LinesOf(text)) {
    const auto unmarked = WithoutMarks(line, filling.marks);
    if (!unmarked) continue;
    is_found = is_found || unmarked->find(filling.placeholder) != std::string::npos;
    filled.push_back(Replaced(*unmarked, filling.placeholder, filling.replacement));
  }
  if (!is_found) return std::nullopt;
  return JoinedLines(filled);
}

int TemplateLineOf(std::string_view text, int filled, const TemplateMarks& marks) {
  int number = 0;
  for (const std::string& line : LinesOf(text)) {
    ++number;
    if (WithoutMarks(line, marks) && --filled == 0) return number;
  }
  return 0;
}

bool FitsLiteral(std::string_view text) {
  return text.find_first_of(kEndsLiteral) == std::string_view::npos;
}

std::string PathInTemplate(std::string_view path) {
  const bool fits = FitsLiteral(path) && path.find_first_of(kBeginsMark) == std::string_view::npos;
  return fits ? std::string(path) : app::FileNamePart(path);
}

void FillTemplate(const std::filesystem::path& source, const std::filesystem::path& destination,
                  const TemplateFilling& filling) {
  std::error_code ignored;
  std::filesystem::remove(destination, ignored);
  const auto filled = FilledTemplate(ReadText(source), filling);
  if (!filled) {
    throw std::runtime_error(app::TextFromPath(source) + " holds no " + std::string(filling.placeholder));
  }
  WriteText(destination, *filled);
}

}  // namespace kelvo::c64out
