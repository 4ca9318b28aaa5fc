#include "command/number_reading.h"

#include <algorithm>

#include "app/text.h"

namespace kelvo::command {
namespace {

// Takes the digits from the front of `text` and gives how many they were.
std::size_t TakeDigits(std::string_view& text) {
  const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
  text.remove_prefix(count);
  return count;
}

// Takes one character from the front of `text` if it is one of `wanted`.
bool TakeOneOf(std::string_view wanted, std::string_view& text) {
  if (text.empty() || wanted.find(text.front()) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

}  // namespace

bool IsNumeric(std::string_view text) {
  constexpr std::string_view kSigns = "+-";
  text = app::Trimmed(text);
  TakeOneOf(kSigns, text);
  std::size_t digits = TakeDigits(text);
  if (TakeOneOf(".", text)) digits += TakeDigits(text);
  if (digits == 0) return false;
  if (TakeOneOf("Ee", text)) {
    TakeOneOf(kSigns, text);
    if (TakeDigits(text) == 0) return false;
  }
  return text.empty();
}

}  // namespace kelvo::command
