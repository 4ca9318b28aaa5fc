// Texts as the characters that people see, where their number or their codes count.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::app {

// The code points of a UTF-8 text. A byte that belongs to no valid sequence counts as the character of its own code.
std::u32string CharactersOf(std::string_view utf8);

}  // namespace kelvo::app
