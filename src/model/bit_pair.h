// The two bits of one multicolour pixel.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kelvo::model {

// Which of a cell's four colours a pixel shows: the picture's background (%00), the high (%01) or low (%10) nibble of
// the cell's screen byte, or its colour byte (%11). "No slot" is an empty std::optional<BitPair>.
enum class BitPair : std::uint8_t { k00 = 0, k01 = 1, k10 = 2, k11 = 3 };

// The three colours of a cell's own, in the order in which a free one is looked for.
inline constexpr std::array<BitPair, 3> kOwnSlots{BitPair::k11, BitPair::k10, BitPair::k01};

// "00", "01", "10" or "11".
constexpr std::string_view ToText(BitPair pair) {
  constexpr std::array<std::string_view, 4> kTexts{"00", "01", "10", "11"};
  return kTexts[static_cast<std::size_t>(pair)];
}

// The pair that `text` names; empty for any other text, the empty one included.
constexpr std::optional<BitPair> BitPairFromText(std::string_view text) {
  for (const BitPair pair : {BitPair::k00, BitPair::k01, BitPair::k10, BitPair::k11}) {
    if (text == ToText(pair)) return pair;
  }
  return std::nullopt;
}

// How far the pair at `position` (1..4 from the left, 1 = bits 7-6) is from the right end of its byte.
constexpr int ShiftOf(int position) {
  return 8 - 2 * position;
}

// The pair at `position` (1..4 from the left) of a bitmap byte.
constexpr BitPair PairAt(std::uint8_t byte, int position) {
  return static_cast<BitPair>(byte >> ShiftOf(position) & 3);
}

// `byte` with the pair at `position` (1..4 from the left) replaced.
constexpr std::uint8_t WithPairAt(std::uint8_t byte, int position, BitPair pair) {
  const int shift = ShiftOf(position);
  return static_cast<std::uint8_t>((byte & ~(3 << shift)) | static_cast<int>(pair) << shift);
}

}  // namespace kelvo::model
