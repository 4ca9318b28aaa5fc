#include "app/utf8.h"

#include <algorithm>
#include <array>

namespace kelvo::app {
namespace {

// A sequence's first byte, its bits that belong to the character, and how many bytes follow with six bits each.
struct Lead {
  unsigned char mask, pattern;
  std::size_t following;
  char32_t lowest;  // a smaller character would be written shorter
};
constexpr std::array<Lead, 3> kLeads{{{0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, 0x10000}}};

bool Follows(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// The number of bytes that `text` begins with and that make up one character, which goes to `character`.
std::size_t ReadCharacter(std::string_view text, char32_t& character) {
  const auto first = static_cast<unsigned char>(text[0]);
  character = first;
  for (const Lead& lead : kLeads) {
    if ((first & lead.mask) != lead.pattern || text.size() <= lead.following) continue;
    const std::string_view following = text.substr(1, lead.following);
    if (!std::all_of(following.begin(), following.end(), Follows)) continue;
    char32_t read = first & static_cast<unsigned char>(~lead.mask);
    for (const char c : following) read = read << 6 | (static_cast<unsigned char>(c) & 0x3F);
    if (read < lead.lowest) continue;
    character = read;
    return 1 + lead.following;
  }
  return 1;
}

}  // namespace

std::u32string CharactersOf(std::string_view utf8) {
  std::u32string characters;
  while (!utf8.empty()) {
    char32_t character = 0;
    utf8.remove_prefix(ReadCharacter(utf8, character));
    characters.push_back(character);
  }
  return characters;
}

std::string_view FirstCharacters(std::string_view utf8, std::size_t count) {
  std::string_view rest = utf8;
  for (char32_t ignored = 0; count > 0 && !rest.empty(); --count) rest.remove_prefix(ReadCharacter(rest, ignored));
  return utf8.substr(0, utf8.size() - rest.size());
}

}  // namespace kelvo::app
