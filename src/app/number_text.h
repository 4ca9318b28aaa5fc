// Numbers as the texts that the program shows and writes: binary, hexadecimal, and with what they count.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::app {

// Eight characters of '0' and '1', bit 7 first. Only the low eight bits of `value` (0 or more) count.
std::string ByteToBinary(int value);

// Each '1' at distance d from the right end adds 2^d; any other character adds nothing. At most 31 characters.
int BinaryToNumber(std::string_view text);

// 0..15 for '0'..'9', 'A'..'F' and 'a'..'f'; 0 for any other character.
int HexDigitValue(char digit);

// Upper-case hexadecimal of `value` (0 or more), padded with '0' to at least `digits` characters.
std::string ToHex(int value, int digits = 2);

// "1 cell", "2 cells".
std::string Counted(int count, std::string_view what);

}  // namespace kelvo::app
