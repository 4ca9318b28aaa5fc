// The sixteen colours of the C64.
#pragma once

#include <cstdint>
#include <optional>

namespace kelvo::model {

// A colour number, 0..15: it cannot hold anything else. Bytes of a file or of colour memory may carry junk in the
// high nibble; FromByte() drops it, FromNumber() refuses it.
class C64Colour {
 public:
  constexpr C64Colour() = default;

  static constexpr C64Colour FromByte(std::uint8_t byte) { return C64Colour(byte & 0x0F); }
  static constexpr C64Colour FromHighNibble(std::uint8_t byte) { return C64Colour(byte >> 4); }
  static constexpr std::optional<C64Colour> FromNumber(int number) {
    if (number < 0 || number >= kCount) return std::nullopt;
    return C64Colour(number);
  }

  constexpr int Number() const { return number_; }
  constexpr std::uint8_t Byte() const { return static_cast<std::uint8_t>(number_); }
  friend constexpr bool operator==(C64Colour, C64Colour) = default;

  static constexpr int kCount = 16;

 private:
  constexpr explicit C64Colour(int number) : number_(number) {}
  int number_ = 0;
};

}  // namespace kelvo::model
