#include "command/input_line.h"

#include <algorithm>

#include "app/text.h"

namespace kelvo::command {

std::optional<char> FilterKey(char32_t typed) {
  constexpr std::u32string_view kOthers = U"@, \b";
  if (typed >= U'a' && typed <= U'z') typed -= U'a' - U'A';
  const bool passes = (typed >= U'A' && typed <= U'Z') || (typed >= U'0' && typed <= U'9') ||
                      kOthers.find(typed) != std::u32string_view::npos;
  if (!passes) return std::nullopt;
  return static_cast<char>(typed);
}

std::string_view KeepPrompt(std::string_view text) {
  return text.starts_with(kPrompt) ? text : kPrompt;
}

int KeepCaret(int position) {
  return std::max(position, kFirstCaret);
}

std::optional<std::string> SubmittedLine(std::string_view text) {
  const std::string one_line = app::Without("\r\n", text);
  std::string_view line = app::Trimmed(one_line);
  if (line.starts_with(kPrompt)) line = app::Trimmed(line.substr(kPrompt.size()));
  if (line.empty()) return std::nullopt;
  return std::string(line);
}

}  // namespace kelvo::command
