#include "c64out/fill_template.h"

#include <stdexcept>

#include "app/path_text.h"
#include "c64out/text_lines.h"

namespace kelvo::c64out {
namespace {

constexpr std::string_view kNetworkOnly = "<CC>";
constexpr std::string_view kEndsLiteral = "\"'\r\n";
constexpr std::string_view kBeginsMark = "[<";  // a placeholder, or the marker of a line

}  // namespace

std::optional<std::string> FilledTemplate(std::string_view text, const TemplateFilling& filling) {
  Lines filled;
  bool is_found = false;
  for (const std::string& line : LinesOf(text)) {
    if (line.find(kNetworkOnly) != std::string::npos && !filling.via_codenet) continue;
    const std::string unmarked = Replaced(line, kNetworkOnly, "");
    is_found = is_found || unmarked.find(filling.placeholder) != std::string::npos;
    filled.push_back(Replaced(unmarked, filling.placeholder, filling.replacement));
  }
  if (!is_found) return std::nullopt;
  return JoinedLines(filled);
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
