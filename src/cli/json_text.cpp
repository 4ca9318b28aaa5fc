#include "cli/json_text.h"

#include "app/number_text.h"
#include "app/utf8.h"

namespace kelvo::cli {
namespace {

std::string Escaped(char32_t code) {
  return "\\u" + app::ToHex(static_cast<int>(code), 4);
}

// Everything beyond ASCII in the two halves of UTF-16 where one is not enough.
std::string JsonCharacter(char32_t character) {
  constexpr char32_t kFirstOfTwo = 0x10000;
  if (character == U'"' || character == U'\\') return {'\\', static_cast<char>(character)};
  if (character >= U' ' && character <= U'~') return {static_cast<char>(character)};
  if (character < kFirstOfTwo) return Escaped(character);
  const char32_t rest = character - kFirstOfTwo;
  return Escaped(0xD800 + (rest >> 10)) + Escaped(0xDC00 + (rest & 0x3FF));
}

}  // namespace

std::string JsonText(std::string_view text) {
  std::string json = "\"";
  for (const char32_t character : app::CharactersOf(text)) json += JsonCharacter(character);
  return json + '"';
}

}  // namespace kelvo::cli
