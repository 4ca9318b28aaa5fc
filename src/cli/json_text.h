// Texts as JSON has them.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::cli {

// In quotes. Bytes that are no UTF-8 become the characters of their codes.
std::string JsonText(std::string_view text);

}  // namespace kelvo::cli
