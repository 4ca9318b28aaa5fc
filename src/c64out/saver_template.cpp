#include "c64out/saver_template.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "app/utf8.h"
#include "app/whole_file.h"
#include "c64out/codenet_protocol.h"
#include "model/number_text.h"

namespace kelvo::c64out {
namespace {

constexpr std::size_t kLongestName = 16;  // on a C64's disk
constexpr char32_t kCodeShift = 32, kLastLatin1 = 255;
constexpr std::uintmax_t kLongestSource = 1U << 20;

struct Placeholder {
  std::string_view text;
  std::string replacement;
};
using Placeholders = std::array<Placeholder, 4>;

Placeholders PlaceholdersFor(std::string_view name, std::uintmax_t program_size) {
  if (program_size >= kMemorySize || SaverEndAddress(program_size) >= kMemorySize) {
    throw std::runtime_error("a program of " + std::to_string(program_size) +
                             " bytes does not fit into the C64's memory");
  }
  const std::string end = model::ToHex(static_cast<int>(SaverEndAddress(program_size)), 4);
  const auto length = static_cast<int>(std::min(kLongestName, app::CharactersOf(name).size()));
  return {{{"[filenamelen]", model::ToHex(length)},
           {"[filename]", ToC64FileName(name)},
           {"[end_low]", end.substr(2)},
           {"[end_high]", end.substr(0, 2)}}};
}

std::string Filled(std::string_view line, const Placeholder& placeholder) {
  std::string filled;
  for (;;) {
    const auto at = line.find(placeholder.text);
    filled += line.substr(0, at);
    if (at == std::string_view::npos) return filled;
    filled += placeholder.replacement;
    line.remove_prefix(at + placeholder.text.size());
  }
}

std::string Filled(std::string_view line, const Placeholders& placeholders) {
  for (const Placeholder& placeholder : placeholders) {
    if (line.find(placeholder.text) != std::string_view::npos) return Filled(line, placeholder);
  }
  return std::string(line);
}

// Takes the first line off `text`, without its LF or CR LF.
std::string_view TakeLine(std::string_view& text) {
  const auto end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

char ToC64Character(char32_t character) {
  if (character < kCodeShift) {
    throw std::runtime_error("overflow: the name holds a character of code " + std::to_string(character) +
                             ", and only those from 32 on have a place in a C64's file name");
  }
  const bool kept = character == '/' || character == '.' || (character >= '0' && character <= '9');
  const char32_t code = character > kLastLatin1 ? U'?' : character;
  return static_cast<char>(kept ? code : code - kCodeShift);
}

}  // namespace

std::string ToC64FileName(std::string_view name) {
  std::string converted;
  for (const char32_t character : app::CharactersOf(name)) converted += ToC64Character(character);
  return converted;
}

std::string FilledSaver(std::string_view source, std::string_view name, std::uintmax_t program_size) {
  const Placeholders placeholders = PlaceholdersFor(name, program_size);
  std::string filled;
  while (!source.empty()) filled += Filled(TakeLine(source), placeholders) + "\r\n";
  return filled;
}

void FillSaverTemplate(const std::filesystem::path& source, const std::filesystem::path& destination,
                       std::string_view name, std::uintmax_t program_size) {
  const app::Bytes bytes = app::ReadWholeFile(source, kLongestSource);
  const std::string filled = FilledSaver(std::string(bytes.begin(), bytes.end()), name, program_size);
  app::WriteWholeFile(destination, app::Bytes(filled.begin(), filled.end()), app::Flush::kLater);
}

}  // namespace kelvo::c64out
