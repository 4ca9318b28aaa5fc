#include "crunch/stream.h"

#include <stdexcept>

namespace kelvo::crunch {

void BitWriter::PutBits(int value, int count) {
  while (count-- > 0) {
    if (free_bits_ == 0) {
      bit_byte_ = bytes_.size();
      free_bits_ = 8;
      PutByte(0);
    }
    bytes_[bit_byte_] |= static_cast<std::uint8_t>((value >> count & 1) << --free_bits_);
  }
}

void BitWriter::PutGamma(int number) {
  for (int digits = GammaBits(number) / 2; digits-- > 0;) PutBits(2 | (number >> digits & 1), 2);
  if (number < kGammaEnd) PutBits(0, 1);
}

int BitReader::GetByte() {
  if (AtEnd()) throw std::runtime_error("the packed data ends too early");
  return bytes_[at_++];
}

int BitReader::GetBits(int count) {
  int value = 0;
  while (count-- > 0) {
    if (bits_left_ == 0) {
      bits_ = GetByte();
      bits_left_ = 8;
    }
    value = value << 1 | (bits_ >> --bits_left_ & 1);
  }
  return value;
}

int BitReader::GetGamma() {
  int number = 1;
  while (number < kGammaEnd && GetBits(1) == 1) number = number << 1 | GetBits(1);
  return number;
}

}  // namespace kelvo::crunch
