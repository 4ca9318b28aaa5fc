#include "c64out/fill_template.h"

#include <stdexcept>

#include "app/path_text.h"
#include "c64out/text_lines.h"

namespace kelvo::c64out {
namespace {

constexpr std::string_view kNetworkOnly = "<CC>";

}  // namespace

std::string Replaced(std::string_view text, std::string_view what, std::string_view replacement) {
  std::string result;
  for (auto at = text.find(what); at != std::string_view::npos; at = text.find(what)) {
    result.append(text.substr(0, at)).append(replacement);
    text.remove_prefix(at + what.size());
  }
  return result.append(text);
}

void FillTemplate(const std::filesystem::path& source, const std::filesystem::path& destination,
                  std::string_view placeholder, std::string_view replacement, bool via_codenet) {
  std::error_code ignored;
  std::filesystem::remove(destination, ignored);
  Lines filled;
  bool is_found = false;
  for (const std::string& line : ReadLines(source)) {
    if (line.find(kNetworkOnly) != std::string::npos && !via_codenet) continue;
    is_found = is_found || line.find(placeholder) != std::string::npos;
    filled.push_back(Replaced(Replaced(line, placeholder, replacement), kNetworkOnly, ""));
  }
  if (!is_found) {
    throw std::runtime_error(app::TextFromPath(source) + " holds no " + std::string(placeholder));
  }
  WriteLines(destination, filled);
}

}  // namespace kelvo::c64out
