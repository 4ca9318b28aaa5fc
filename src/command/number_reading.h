// When a typed text counts as a number.
#pragma once

#include <string_view>

namespace kelvo::command {

// True for a whole or decimal number, with a sign, an exponent and spaces around it where wanted: "8", " -8.5", "1E3".
// The decimal sign is the point, whatever the user's language: "8,9" is no number. Neither is an empty text.
bool IsNumeric(std::string_view text);

}  // namespace kelvo::command
