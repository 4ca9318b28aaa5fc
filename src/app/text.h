// Small changes to texts, the same whatever the user's language: only ASCII letters have a case here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelvo::app {

// `text` without the spaces around it.
std::string_view Trimmed(std::string_view text);

// `text` with its ASCII letters in upper or in lower case.
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

// The whole number that all of `text` spells in `base`; nothing for any other text and one that `Number` cannot hold.
template <typename Number>
std::optional<Number> WholeNumber(std::string_view text, int base = 10);
extern template std::optional<int> WholeNumber(std::string_view text, int base);
extern template std::optional<std::uint16_t> WholeNumber(std::string_view text, int base);

// `text` without any of the characters in `unwanted`.
std::string Without(std::string_view unwanted, std::string_view text);

}  // namespace kelvo::app
