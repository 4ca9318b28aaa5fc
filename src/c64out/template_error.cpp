#include "c64out/template_error.h"

#include "app/number_text.h"
#include "app/path_text.h"
#include "app/text.h"
#include "c64out/text_lines.h"

namespace kelvo::c64out {

std::string InTermsOfTemplate(const std::string& said, const std::filesystem::path& filled,
                              const std::filesystem::path& source, const TemplateMarks& marks) {
  const std::string name = app::TextFromPath(filled.filename());
  const std::size_t at = said.find(name + ":");
  if (at == std::string::npos) return said;
  const std::size_t from = at + name.size() + 1;
  const std::string rest = said.substr(from, said.find_first_of("\r\n", from) - from);
  const std::size_t line_end = rest.find(':'), place_end = rest.find(": ");
  const auto filled_line = app::WholeNumber<int>(rest.substr(0, line_end));
  if (!filled_line || place_end == std::string::npos) return said;
  const std::string text = ReadText(source);
  const int line = TemplateLineOf(text, *filled_line, marks);
  if (line == 0) return said;
  const std::string code = LinesOf(text)[static_cast<std::size_t>(line - 1)];
  return app::TextFromPath(source.filename()) + ", line " + std::to_string(line) + ": " + rest.substr(place_end + 2) +
         ": " + std::string(app::Trimmed(code));
}

}  // namespace kelvo::c64out
