// Mixing colours of a Surface.
#pragma once

#include <cstdint>

namespace kelvo::model {

// A quarter of `over` mixed into `under`, channel by channel. A colour mixed into itself stays exactly as it is.
constexpr std::uint32_t MixQuarter(std::uint32_t under, std::uint32_t over) {
  constexpr std::uint32_t kLowBitsOff = 0x3F3F3F3F;
  return under - (under >> 2 & kLowBitsOff) + (over >> 2 & kLowBitsOff);
}

}  // namespace kelvo::model
