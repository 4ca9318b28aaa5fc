#include "app/text.h"

#include <algorithm>
#include <charconv>

namespace kelvo::app {

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string ToUpper(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return upper;
}

std::string ToLower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return lower;
}

std::string Without(std::string_view unwanted, std::string_view text) {
  std::string rest(text);
  std::erase_if(rest, [&](char c) { return unwanted.find(c) != std::string_view::npos; });
  return rest;
}

template <typename Number>
std::optional<Number> WholeNumber(std::string_view text, int base) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}
template std::optional<int> WholeNumber(std::string_view text, int base);
template std::optional<std::uint16_t> WholeNumber(std::string_view text, int base);

}  // namespace kelvo::app
