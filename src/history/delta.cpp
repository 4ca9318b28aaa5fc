#include "history/delta.h"

#include <algorithm>

#include "history/byte_stream.h"

// A difference is a row of runs: how many bytes are the same, how many differ (times two, plus one where all differ in
// the same bits), and in which bits: a byte for each, or one for all.
namespace kelvo::history {
namespace {

using model::C64Colour;
using model::PictureImage;

constexpr std::size_t kShortGap = 3;    // a gap that costs no more inside a run than between two
constexpr std::size_t kLongRepeat = 5;  // equal bytes that are worth a run of their own

// How many bytes from `at` on are `value`, up to `end`.
std::size_t CountOf(const State& bits, std::size_t at, std::size_t end, std::uint8_t value) {
  const auto* first = bits.begin() + at;
  return static_cast<std::size_t>(
      std::find_if(first, bits.begin() + end, [value](std::uint8_t byte) { return byte != value; }) - first);
}

bool BeginsRepeat(const State& bits, std::size_t at) {
  return at < kStateBytes && CountOf(bits, at, std::min(at + kLongRepeat, kStateBytes), bits[at]) == kLongRepeat;
}

// Where the run of unequal bytes that begins at `at` ends.
std::size_t EndOfRun(const State& bits, std::size_t at) {
  while (at < kStateBytes && !BeginsRepeat(bits, at)) {
    if (bits[at] == 0 && CountOf(bits, at, std::min(at + kShortGap, kStateBytes), 0) == kShortGap) break;
    ++at;
  }
  return at;
}

}  // namespace

State StateOf(const PictureImage& picture) {
  State state;
  auto* at = state.begin();
  for (const std::span<const std::uint8_t> part :
       {std::span<const std::uint8_t>(picture.Bitmap), std::span<const std::uint8_t>(picture.ScreenMemory),
        std::span<const std::uint8_t>(picture.ColourMemory)}) {
    at = std::copy(part.begin(), part.end(), at);
  }
  *at++ = picture.BackgroundColour.Byte();
  *at++ = picture.LoadAddressLow;
  *at = picture.LoadAddressHigh;
  return state;
}

PictureImage PictureOf(const State& state) {
  PictureImage picture;
  const auto* at = state.begin();
  const auto take = [&at](auto& part) {
    std::copy_n(at, part.size(), part.begin());
    at += part.size();
  };
  take(picture.Bitmap);
  take(picture.ScreenMemory);
  take(picture.ColourMemory);
  picture.BackgroundColour = C64Colour::FromByte(*at++);
  picture.LoadAddressLow = *at++;
  picture.LoadAddressHigh = *at;
  return picture;
}

app::Bytes Difference(const State& one, const State& other) {
  app::Bytes delta;
  if (one == other) return delta;
  State bits;
  std::transform(one.begin(), one.end(), other.begin(), bits.begin(), std::bit_xor());
  for (std::size_t at = 0; at < kStateBytes;) {
    const std::size_t gap = CountOf(bits, at, kStateBytes, 0);
    at += gap;
    if (at == kStateBytes) break;
    PutNumber(delta, static_cast<std::uint32_t>(gap));
    const bool is_repeat = BeginsRepeat(bits, at);
    const std::size_t end = is_repeat ? at + CountOf(bits, at, kStateBytes, bits[at]) : EndOfRun(bits, at);
    PutNumber(delta, static_cast<std::uint32_t>((end - at) * 2 + (is_repeat ? 1 : 0)));
    delta.insert(delta.end(), bits.begin() + at, bits.begin() + (is_repeat ? at + 1 : end));
    at = end;
  }
  delta.shrink_to_fit();
  return delta;
}

void Apply(std::span<const std::uint8_t> delta, State& state) {
  ByteReader reader(delta);
  std::size_t at = 0;
  while (!reader.IsAtEnd()) {
    at += reader.Number();
    const std::uint32_t run = reader.Number();
    const std::size_t count = run / 2;
    if (at > kStateBytes || count > kStateBytes - at) throw DamagedSteps();
    const bool is_repeat = run % 2 == 1;
    const auto bits = reader.Take(is_repeat ? 1 : count);
    for (std::size_t i = 0; i < count; ++i) state[at + i] ^= bits[is_repeat ? 0 : i];
    at += count;
  }
}

}  // namespace kelvo::history
