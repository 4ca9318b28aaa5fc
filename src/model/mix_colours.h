// Mixing colours of a Surface, channel by channel. A colour mixed into itself stays exactly as it is.
#pragma once

#include <cstdint>

namespace kelvo::model {

// A quarter of `over` mixed into `under`.
constexpr std::uint32_t MixQuarter(std::uint32_t under, std::uint32_t over) {
  constexpr std::uint32_t kLowBitsOff = 0x3F3F3F3F;
  return under - (under >> 2 & kLowBitsOff) + (over >> 2 & kLowBitsOff);
}

// Half of each.
constexpr std::uint32_t MixHalf(std::uint32_t under, std::uint32_t over) {
  constexpr std::uint32_t kLowBitsOff = 0x7F7F7F7F;
  return under - (under >> 1 & kLowBitsOff) + (over >> 1 & kLowBitsOff);
}

// One to three quarters of `over` mixed into `under`.
constexpr std::uint32_t MixQuarters(std::uint32_t under, std::uint32_t over, int quarters) {
  if (quarters == 2) return MixHalf(under, over);
  return quarters < 2 ? MixQuarter(under, over) : MixQuarter(over, under);
}

}  // namespace kelvo::model
