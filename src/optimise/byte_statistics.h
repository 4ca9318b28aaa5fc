// How surprising a byte is behind two others, told by what was counted: an estimate of what packing it takes.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace kelvo::optimise {

// The two values in front of one; 0 at the start.
struct Context {
  std::uint8_t before = 0, last = 0;

  Context Then(std::uint8_t value) const { return {last, value}; }
};

class ByteStatistics {
 public:
  ByteStatistics() : pairs_(kByteValues * kByteValues), triples_(kTripleSlots) {}

  // Counts `value` once more, or with -1 no longer.
  void Count(Context context, std::uint8_t value, int times);
  // The bits that `value` takes there.
  float Bits(Context context, std::uint8_t value) const;

 private:
  static constexpr std::size_t kByteValues = 256, kTripleSlots = std::size_t{1} << 19;

  static std::size_t SlotOf(Context context, std::uint8_t value);

  std::array<int, kByteValues> singles_{}, last_{};
  std::vector<std::uint16_t> pairs_, triples_;
  std::vector<std::uint16_t> contexts_ = std::vector<std::uint16_t>(kByteValues * kByteValues);
  int all_ = 0;
};

}  // namespace kelvo::optimise
