// One section of packed data: runs of literals, and copies of what is already there.
//
//     section  = byte short_digits, byte long_digits, then tokens, the end mark last
//     token    = behind a copy, and at the start:  0, gamma of the length, literals
//                                                  1, new copy
//                behind literals:                  0, gamma of the length: a copy from the offset used last
//                                                  1, new copy
//     new copy = length, gamma of the high part + 1, low digits of the offset less 1; of these there are short_digits
//                in a copy of two bytes, long_digits in a longer one
//     length   = gamma of the length less 1, or for a long copy gamma kGammaEnd, gamma of its length / 256 + 1
//     end mark = 1, gamma kGammaEnd, gamma 1
//
// Literals that are kMostLength long count as a copy, so that more literals can follow. A literal is a whole byte of
// the stream, or four bits in a section of nibbles. No offset is used last at the start.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "crunch/stream.h"

namespace kelvo::crunch {

// How many bits a literal takes.
enum class Literals { kBytes = 8, kNibbles = 4 };

// `length` bytes: literals where `offset` is 0, else copied from `offset` bytes before. 1..kMostLength, or as a new
// copy also a multiple of kLongUnit up to kMostLong.
struct Token {
  int length = 0, offset = 0;
};
inline constexpr int kMostLength = 255, kLeastNewCopy = 2;
inline constexpr int kLongUnit = 256, kMostLong = 254 * kLongUnit;

// The bits that the length of a new copy takes.
constexpr int NewCopyLengthBits(int length) {
  return length <= kMostLength ? GammaBits(length - 1) : kGammaEndBits + GammaBits(length / kLongUnit + 1);
}

// How offsets are told in a section.
inline constexpr int kMostDigits = 15;
struct OffsetCode {
  int short_digits = 0, long_digits = 0;  // 0..kMostDigits

  int DigitsFor(int length) const { return length == kLeastNewCopy ? short_digits : long_digits; }
  // Whether a new copy of `length` bytes can tell `offset`.
  bool Takes(int length, int offset) const { return (offset - 1) >> DigitsFor(length) < kGammaEnd - 1; }
  // The bits that the offset of a new copy takes.
  int Bits(int length, int offset) const {
    return GammaBits(((offset - 1) >> DigitsFor(length)) + 1) + DigitsFor(length);
  }
};

// The token behind literals of `length` is told as behind a copy.
constexpr bool CountsAsCopy(int length) {
  return length == kMostLength;
}

// Writes `tokens`, which make up `bytes` and whose offsets `code` takes.
void WriteSection(std::span<const std::uint8_t> bytes, std::span<const Token> tokens, Literals literals,
                  const OffsetCode& code, BitWriter& writer);

// Reads a section of at most `most` bytes. Throws std::runtime_error for damaged data.
std::vector<std::uint8_t> ReadSection(Literals literals, std::size_t most, BitReader& reader);

}  // namespace kelvo::crunch
