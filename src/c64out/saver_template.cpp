#include "c64out/saver_template.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "app/number_text.h"
#include "app/utf8.h"
#include "c64out/c64_memory.h"
#include "c64out/fill_template.h"
#include "c64out/text_lines.h"

namespace kelvo::c64out {
namespace {

constexpr std::size_t kLongestName = 16;  // on a C64's disk
constexpr char32_t kCodeShift = 32, kLastLatin1 = 255;

struct Placeholder {
  std::string_view text;
  std::string replacement;
};
using Placeholders = std::array<Placeholder, 5>;

// The name as numbers, which no name can leave, filled up like the names in a disk's directory.
std::string BytesOnDisk(std::string_view converted) {
  constexpr std::uint8_t kFiller = 0xA0;
  std::string numbers;
  for (std::size_t i = 0; i < kLongestName; ++i) {
    const std::uint8_t byte = i < converted.size() ? static_cast<std::uint8_t>(converted[i]) : kFiller;
    numbers += ",$" + app::ToHex(byte);
  }
  return numbers.substr(1);
}

Placeholders PlaceholdersFor(std::string_view name, std::uintmax_t program_size) {
  if (program_size >= kMemorySize || SaverEndAddress(program_size) >= kMemorySize) {
    throw std::runtime_error("a program of " + std::to_string(program_size) +
                             " bytes does not fit into the C64's memory");
  }
  const std::string end = app::ToHex(static_cast<int>(SaverEndAddress(program_size)), 4);
  const std::string converted = ToC64FileName(name);
  const auto length = static_cast<int>(std::min(kLongestName, converted.size()));
  return {{{"[filenamelen]", app::ToHex(length)},
           {"[filename]", converted},
           {"[end_low]", end.substr(2)},
           {"[end_high]", end.substr(0, 2)},
           {"[filename_bytes]", BytesOnDisk(converted)}}};
}

std::string Filled(const std::string& line, const Placeholders& placeholders) {
  for (const Placeholder& placeholder : placeholders) {
    if (line.find(placeholder.text) == std::string::npos) continue;
    if (!FitsLiteral(placeholder.replacement)) {
      throw std::runtime_error(
          "the saver's template takes the name as text, which can hold none of -, *, B and G; set a "
          "PRG name without them in the Codenet settings");
    }
    return Replaced(line, placeholder.text, placeholder.replacement);
  }
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
  Lines lines = LinesOf(source);
  for (std::string& line : lines) line = Filled(line, placeholders);
  return JoinedLines(lines);
}

void FillSaverTemplate(const std::filesystem::path& source, const std::filesystem::path& destination,
                       std::string_view name, std::uintmax_t program_size) {
  WriteText(destination, FilledSaver(ReadText(source), name, program_size));
}

}  // namespace kelvo::c64out
