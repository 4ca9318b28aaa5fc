#include "optimise/byte_statistics.h"

#include <cmath>

namespace kelvo::optimise {
namespace {

// How much the shorter context weighs against what was counted in the longer one; found by trying.
constexpr float kShorter = 2, kUnseen = 0.4F;

}  // namespace

// The triples share slots by their hash: two in one slot only make the estimate a little worse.
std::size_t ByteStatistics::SlotOf(Context context, std::uint8_t value) {
  constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15;
  const std::uint64_t triple = static_cast<std::uint64_t>(context.before << 16 | context.last << 8 | value);
  return static_cast<std::size_t>(triple * kGoldenRatio >> 45);
}

void ByteStatistics::Count(Context context, std::uint8_t value, int times) {
  const auto add = [times](auto& count) { count = static_cast<std::uint16_t>(count + times); };
  const std::size_t last = context.last;
  all_ += times;
  singles_[value] += times;
  last_[last] += times;
  add(pairs_[last * kByteValues + value]);
  add(contexts_[context.before * kByteValues + last]);
  add(triples_[SlotOf(context, value)]);
}

float ByteStatistics::Bits(Context context, std::uint8_t value) const {
  const std::size_t last = context.last;
  const auto mixed = [](int hits, int all, float shorter) {
    return (static_cast<float>(hits) + kShorter * shorter) / (static_cast<float>(all) + kShorter);
  };
  const float alone =
      (static_cast<float>(singles_[value]) + kUnseen) / (static_cast<float>(all_) + kUnseen * kByteValues);
  const float behind_one = mixed(pairs_[last * kByteValues + value], last_[last], alone);
  return -std::log2(
      mixed(triples_[SlotOf(context, value)], contexts_[context.before * kByteValues + last], behind_one));
}

}  // namespace kelvo::optimise
