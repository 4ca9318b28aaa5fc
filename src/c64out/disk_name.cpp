#include "c64out/disk_name.h"

#include <algorithm>

#include "app/text.h"
#include "app/utf8.h"

namespace kelvo::c64out {
namespace {

constexpr std::string_view kNotInNames = ":,=*?\"", kNotInFront = "-@$#&";

// The letters from U+00C0 on, in the order of Unicode.
constexpr char32_t kFirstLetter = 0xC0;
constexpr const char* kLikeness[] = {
    "a",  "a", "a",  "a", "ae", "a", "ae", "c",  "e",  "e", "e",  "e",  "i", "i", "i",  "i",  "d",  "n", "o",  "o",
    "o",  "o", "oe", "-", "o",  "u", "u",  "u",  "ue", "y", "th", "ss", "a", "a", "a",  "a",  "ae", "a", "ae", "c",
    "e",  "e", "e",  "e", "i",  "i", "i",  "i",  "d",  "n", "o",  "o",  "o", "o", "oe", "-",  "o",  "u", "u",  "u",
    "ue", "y", "th", "y", "a",  "a", "a",  "a",  "a",  "a", "c",  "c",  "c", "c", "c",  "c",  "c",  "c", "d",  "d",
    "d",  "d", "e",  "e", "e",  "e", "e",  "e",  "e",  "e", "e",  "e",  "g", "g", "g",  "g",  "g",  "g", "g",  "g",
    "h",  "h", "h",  "h", "i",  "i", "i",  "i",  "i",  "i", "i",  "i",  "i", "i", "ij", "ij", "j",  "j", "k",  "k",
    "k",  "l", "l",  "l", "l",  "l", "l",  "l",  "l",  "l", "l",  "n",  "n", "n", "n",  "n",  "n",  "n", "n",  "n",
    "o",  "o", "o",  "o", "o",  "o", "oe", "oe", "r",  "r", "r",  "r",  "r", "r", "s",  "s",  "s",  "s", "s",  "s",
    "s",  "s", "t",  "t", "t",  "t", "t",  "t",  "u",  "u", "u",  "u",  "u", "u", "u",  "u",  "u",  "u", "u",  "u",
    "w",  "w", "y",  "y", "y",  "z", "z",  "z",  "z",  "z", "z",  "s"};

std::string LikenessOf(char32_t character) {
  if (character >= kFirstLetter && character < kFirstLetter + std::size(kLikeness)) {
    return kLikeness[character - kFirstLetter];
  }
  const bool fits = character >= U' ' && character <= U'~' &&
                    kNotInNames.find(static_cast<char>(character)) == std::string_view::npos;
  return fits ? std::string(1, static_cast<char>(character)) : "-";
}

}  // namespace

bool FitsDisk(std::string_view name) {
  const bool is_ascii = std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c <= '~'; });
  return is_ascii && name.find_first_of(kNotInNames) == std::string_view::npos && name.find_first_of(kNotInFront) != 0;
}

std::string ProposedDiskName(std::string_view name) {
  std::string proposed;
  for (const char32_t character : app::CharactersOf(name)) proposed += LikenessOf(character);
  const auto first = proposed.find_first_not_of(kNotInFront);
  return first == std::string::npos ? std::string() : app::ToLower(app::Trimmed(proposed.substr(first)));
}

}  // namespace kelvo::c64out
