// Packs parts of changes. What a part has in common with anything that lies in the C64's memory already is not written
// again but copied from there: other frames' changes too, as long as they stay where they are.
#pragma once

#include <array>
#include <map>
#include <span>

#include "c64anim/animation_format.h"

namespace kelvo::c64anim {

class Packing {
 public:
  struct Copy {
    int from = 0, length = 0;  // an address, or a distance
  };

  // `bytes` lie at `address` for as long as the animation plays.
  void Know(int address, std::span<const std::uint8_t> bytes);
  // `size` bytes from `address` on are others now.
  void Forget(int address, int size);

  // `part` (at most kBufferSize bytes) as packed bytes. They can be unpacked wherever they lie.
  Bytes Packed(std::span<const std::uint8_t> part) const;

  // What the player takes to unpack such bytes, in cycles at the most.
  static int UnpackingCycles(std::span<const std::uint8_t> packed);

 private:
  static constexpr std::size_t kMemory = 0x10000;
  using Key = std::array<std::uint8_t, kShortestFar>;

  Copy LongestFar(std::span<const std::uint8_t> bytes) const;

  std::array<std::uint8_t, kMemory> memory_{};
  std::array<bool, kMemory> is_known_{};
  std::map<Key, std::vector<int>> places_;  // where these bytes are, or were
};

}  // namespace kelvo::c64anim
