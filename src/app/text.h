// Small changes to texts, the same whatever the user's language: only ASCII letters have a case here.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::app {

// `text` without the spaces around it.
std::string_view Trimmed(std::string_view text);

// `text` with its ASCII letters in upper case.
std::string ToUpper(std::string_view text);

// `text` without any of the characters in `unwanted`.
std::string Without(std::string_view unwanted, std::string_view text);

}  // namespace kelvo::app
