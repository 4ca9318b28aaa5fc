// Texts as the characters that people see, where their number or their codes count.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::app {

// The code points of a UTF-8 text. A byte that belongs to no valid sequence counts as the character of its own code.
std::u32string CharactersOf(std::string_view utf8);

// The part of a UTF-8 text that holds its first `count` code points, or all of it.
std::string_view FirstCharacters(std::string_view utf8, std::size_t count);

}  // namespace kelvo::app
