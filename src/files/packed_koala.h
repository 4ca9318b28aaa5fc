// Packed Koala pictures (.gg): runs of equal bytes are told by their number.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>

#include "app/bytes.h"

namespace kelvo::files {

// Bytes that unpack to no picture. The message says why not.
class PackedError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The longest a packed file can be: no byte of the picture takes more than three.
inline constexpr std::size_t kMostPackedBytes = 2 + 3 * 10001;

// A plain Koala file, packed. $FE stands in runs alone, however few.
app::Bytes PackKoala(std::span<const std::uint8_t> plain);

// The plain Koala file of 10003 bytes that is packed in `bytes`: behind the load address stand a byte as itself, or
// $FE, a value, and how many times it comes (1..255). Throws PackedError.
app::Bytes UnpackKoala(std::span<const std::uint8_t> bytes);

}  // namespace kelvo::files
