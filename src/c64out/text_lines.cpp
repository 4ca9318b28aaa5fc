#include "c64out/text_lines.h"

#include <sstream>

#include "app/whole_file.h"

namespace kelvo::c64out {
namespace {

constexpr std::uintmax_t kMostBytes = 1 << 20;

}  // namespace

Lines ReadLines(const std::filesystem::path& file) {
  const app::Bytes bytes = app::ReadWholeFile(file, kMostBytes);
  std::istringstream text(std::string(bytes.begin(), bytes.end()));
  Lines lines;
  for (std::string line; std::getline(text, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

void WriteLines(const std::filesystem::path& file, const Lines& lines) {
  app::Bytes bytes;
  for (const std::string& line : lines) {
    bytes.insert(bytes.end(), line.begin(), line.end());
    bytes.insert(bytes.end(), {'\r', '\n'});
  }
  app::WriteWholeFile(file, bytes, app::Flush::kLater);
}

}  // namespace kelvo::c64out
