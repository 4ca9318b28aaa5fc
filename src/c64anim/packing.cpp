#include "c64anim/packing.h"

#include <algorithm>
#include <limits>

namespace kelvo::c64anim {
namespace {

constexpr int kNearBytes = 2, kFarBytes = 3;
constexpr std::size_t kMostPlaces = 200;  // that are looked at for a copy
// Of the player, at the most.
constexpr int kPartCycles = 150, kRunCycles = 130, kByteCycles = 20;

// One run of packed bytes: single ones, or a copy.
struct Run {
  enum class Kind { kLiterals, kNear, kFar } kind = Kind::kLiterals;
  int length = 0, from = 0;  // a distance or an address
};

// The longest copy of what stands at `at` from what stands before it.
Packing::Copy LongestNear(std::span<const std::uint8_t> part, std::size_t at) {
  Packing::Copy longest;
  const std::size_t most = std::min<std::size_t>(part.size() - at, kLongestNear);
  for (std::size_t distance = 1; distance <= std::min<std::size_t>(at, kMostDistance); ++distance) {
    std::size_t length = 0;
    while (length < most && part[at + length - distance] == part[at + length]) ++length;
    if (static_cast<int>(length) > longest.length) longest = {static_cast<int>(distance), static_cast<int>(length)};
  }
  return longest;
}

// The fewest bytes from each place on to the part's end, and the run to take there. Counted from the end, so that each
// place knows what comes behind it.
class Shortest {
 public:
  explicit Shortest(std::size_t size) : bytes_(size + 1, std::numeric_limits<int>::max()), runs_(size) {
    bytes_[size] = 0;
  }
  void Offer(std::size_t at, const Run& run, int run_bytes) {
    const int bytes = run_bytes + bytes_[at + static_cast<std::size_t>(run.length)];
    if (bytes >= bytes_[at]) return;
    bytes_[at] = bytes;
    runs_[at] = run;
  }
  const Run& At(std::size_t at) const { return runs_[at]; }

 private:
  std::vector<int> bytes_;
  std::vector<Run> runs_;
};

void Put(const Run& run, std::span<const std::uint8_t> part, Bytes& packed) {
  const auto put = [&packed](int byte) { packed.push_back(static_cast<std::uint8_t>(byte)); };
  switch (run.kind) {
    case Run::Kind::kLiterals:
      put(run.length);
      packed.insert(packed.end(), part.begin(), part.begin() + run.length);
      return;
    case Run::Kind::kNear:
      put(kNearCopy + run.length - kShortestNear);
      put(run.from);
      return;
    case Run::Kind::kFar:
      put(kFarCopy + run.length - kShortestFar);
      put(run.from & 0xFF);
      put(run.from >> 8);
      return;
  }
}

}  // namespace

void Packing::Know(int address, std::span<const std::uint8_t> bytes) {
  std::copy(bytes.begin(), bytes.end(), memory_.begin() + address);
  std::fill_n(is_known_.begin() + address, bytes.size(), true);
  const auto end = static_cast<std::size_t>(address) + bytes.size();
  for (auto at = static_cast<std::size_t>(address); at + kShortestFar <= end; ++at) {
    Key key;
    std::copy_n(memory_.begin() + static_cast<std::ptrdiff_t>(at), key.size(), key.begin());
    places_[key].push_back(static_cast<int>(at));
  }
}

void Packing::Forget(int address, int size) {
  std::fill_n(is_known_.begin() + address, size, false);
}

Packing::Copy Packing::LongestFar(std::span<const std::uint8_t> bytes) const {
  Copy longest;
  Key key;
  if (bytes.size() < key.size()) return longest;
  std::copy_n(bytes.begin(), key.size(), key.begin());
  const auto places = places_.find(key);
  if (places == places_.end()) return longest;
  const std::size_t most = std::min<std::size_t>(bytes.size(), kLongestFar);
  const std::vector<int>& all = places->second;
  const auto newest = std::span(all).last(std::min(all.size(), kMostPlaces));
  for (const int address : newest) {
    std::size_t length = 0;
    for (auto at = static_cast<std::size_t>(address);
         length < most && at < kMemory && is_known_[at] && memory_[at] == bytes[length]; ++at) {
      ++length;
    }
    if (static_cast<int>(length) >= longest.length) longest = {address, static_cast<int>(length)};
  }
  return longest;
}

Bytes Packing::Packed(std::span<const std::uint8_t> part) const {
  const auto size = static_cast<int>(part.size());
  Shortest shortest(part.size());
  for (int at = size - 1; at >= 0; --at) {
    const auto place = static_cast<std::size_t>(at);
    for (int length = 1; length <= std::min(size - at, kMostLiterals); ++length) {
      shortest.Offer(place, {Run::Kind::kLiterals, length, 0}, 1 + length);
    }
    const Copy near = LongestNear(part, place);
    for (int length = kShortestNear; length <= near.length; ++length) {
      shortest.Offer(place, {Run::Kind::kNear, length, near.from}, kNearBytes);
    }
    const Copy far = LongestFar(part.subspan(place));
    for (int length = kShortestFar; length <= far.length; ++length) {
      shortest.Offer(place, {Run::Kind::kFar, length, far.from}, kFarBytes);
    }
  }
  Bytes packed;
  for (std::size_t at = 0; at < part.size();) {
    const Run& run = shortest.At(at);
    Put(run, part.subspan(at), packed);
    at += static_cast<std::size_t>(run.length);
  }
  packed.push_back(0);
  return packed;
}

int Packing::UnpackingCycles(std::span<const std::uint8_t> packed) {
  int cycles = kPartCycles;
  for (std::size_t at = 0; packed[at] != 0;) {
    const int run = packed[at];
    const int length = run >= kFarCopy    ? run - kFarCopy + kShortestFar
                       : run >= kNearCopy ? run - kNearCopy + kShortestNear
                                          : run;
    cycles += kRunCycles + kByteCycles * length;
    at += static_cast<std::size_t>(run >= kFarCopy ? kFarBytes : run >= kNearCopy ? kNearBytes : 1 + run);
  }
  return cycles;
}

}  // namespace kelvo::c64anim
