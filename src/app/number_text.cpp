#include "app/number_text.h"

namespace kelvo::app {

std::string ByteToBinary(int value) {
  std::string text(8, '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value /= 2) {
    if (value % 2 != 0) *digit = '1';
  }
  return text;
}

int BinaryToNumber(std::string_view text) {
  int number = 0;
  for (const char digit : text) number = number * 2 + (digit == '1' ? 1 : 0);
  return number;
}

int HexDigitValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return 0;
}

std::string ToHex(int value, int digits) {
  std::string text;
  for (; value > 0 || digits > 0; value /= 16, --digits) text.insert(text.begin(), "0123456789ABCDEF"[value % 16]);
  return text;
}

std::string Counted(int count, std::string_view what) {
  return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

}  // namespace kelvo::app
