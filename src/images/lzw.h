// LZW as GIF packs pixels with it.
#pragma once

#include <cstdint>
#include <span>

#include "app/bytes.h"

namespace kelvo::images {

inline constexpr int kPixelBits = 4;  // pixels are colour numbers, 0..15

// The packed pixels as one row of bits, lowest first, beginning with the code that clears the dictionary and ended by
// the one for the end.
app::Bytes LzwPacked(std::span<const std::uint8_t> pixels);

}  // namespace kelvo::images
