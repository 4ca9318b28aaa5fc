#include "c64out/text_lines.h"

#include "app/whole_file.h"

namespace kelvo::c64out {
namespace {

constexpr std::uintmax_t kMostBytes = 1 << 20;

// Takes the first line off `text`, without its end.
std::string_view TakeLine(std::string_view& text) {
  const auto end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

Lines LinesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) lines.emplace_back(TakeLine(text));
  return lines;
}

std::string JoinedLines(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::string Replaced(std::string_view text, std::string_view what, std::string_view replacement) {
  std::string result;
  for (auto at = text.find(what); at != std::string_view::npos; at = text.find(what)) {
    result.append(text.substr(0, at)).append(replacement);
    text.remove_prefix(at + what.size());
  }
  return result.append(text);
}

std::string ReadText(const std::filesystem::path& file) {
  const app::Bytes bytes = app::ReadWholeFile(file, kMostBytes);
  return {bytes.begin(), bytes.end()};
}

void WriteText(const std::filesystem::path& file, std::string_view text) {
  app::WriteOwnFile(file, app::Bytes(text.begin(), text.end()));
}

}  // namespace kelvo::c64out
