// How the C64's colours look on a display, and what they are called.
#pragma once

#include <cstdint>
#include <string_view>

#include "model/c64_colour.h"

namespace kelvo::model {

// The display colour of colour `number`, packed as red + green * 256 + blue * 65536. Numbers outside 0..15 are black.
std::uint32_t C64ColourToRgb(int number);

// The same colour as a pixel of a Surface: 0xFFRRGGBB.
std::uint32_t SurfaceColour(C64Colour colour);

// The name as menus show it, number first in hexadecimal: "00 Black" .. "0F Light gray".
std::string_view ColourName(C64Colour colour);

}  // namespace kelvo::model
