// The packed bytes: bits and whole bytes in one stream.
//
// Bits travel in bytes, highest bit first. A byte of bits stands where its first bit is needed, and whole bytes stand
// between such bytes in the order of their use, so that a reader only ever goes forward.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kelvo::crunch {

// Positive numbers are told by Elias' gamma code, interlaced: for each binary digit behind the first a 1 and the digit,
// then a 0. From kGammaEnd on there are none: eight digits stop a reader there, without the 0.
inline constexpr int kGammaEnd = 256, kGammaEndBits = 16;
// The bits that `number` (1..kGammaEnd - 1) takes.
constexpr int GammaBits(int number) {
  return 2 * static_cast<int>(std::bit_width(static_cast<unsigned>(number))) - 1;
}

class BitWriter {
 public:
  void PutByte(int byte) { bytes_.push_back(static_cast<std::uint8_t>(byte)); }
  // The lowest `count` (0..16) bits of `value`, highest first.
  void PutBits(int value, int count);
  // `number` is 1..kGammaEnd.
  void PutGamma(int number);

  const std::vector<std::uint8_t>& Bytes() const { return bytes_; }

 private:
  std::vector<std::uint8_t> bytes_;
  std::size_t bit_byte_ = 0;
  int free_bits_ = 0;  // of the byte at bit_byte_
};

// Throws std::runtime_error when the bytes are at an end.
class BitReader {
 public:
  explicit BitReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  int GetByte();
  int GetBits(int count);
  int GetGamma();
  bool AtEnd() const { return at_ == bytes_.size(); }

 private:
  std::span<const std::uint8_t> bytes_;
  std::size_t at_ = 0;
  int bits_ = 0, bits_left_ = 0;
};

}  // namespace kelvo::crunch
