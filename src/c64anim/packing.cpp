#include "c64anim/packing.h"

#include <algorithm>
#include <ranges>

namespace kelvo::c64anim {
namespace {

constexpr int kCopyBytes = 3;
constexpr int kMostPlaces = 200;  // that are looked at for a copy
// Of the player, at the most.
constexpr int kPartCycles = 150, kRunCycles = 115, kByteCycles = 20;

// Runs of packed bytes, one after the other.
class Runs {
 public:
  void Literal(std::uint8_t byte) {
    if (literals_ == 0 || literals_ == kMostLiterals) {
      count_at_ = bytes_.size();
      literals_ = 0;
      bytes_.push_back(0);
    }
    bytes_[count_at_] = static_cast<std::uint8_t>(++literals_);
    bytes_.push_back(byte);
  }
  void Copy(int address, int length) {
    literals_ = 0;
    for (const int byte : {kCopy + length - kShortestCopy, address & 0xFF, address >> 8}) {
      bytes_.push_back(static_cast<std::uint8_t>(byte));
    }
  }
  // A copy in the middle of single bytes makes a new run of those behind it.
  int CopyCosts() const { return literals_ == 0 ? kCopyBytes : kCopyBytes + 1; }
  Bytes Finished() {
    bytes_.push_back(0);
    return bytes_;
  }

 private:
  Bytes bytes_;
  std::size_t count_at_ = 0;
  int literals_ = 0;
};

}  // namespace

void Packing::Know(int address, std::span<const std::uint8_t> bytes) {
  std::copy(bytes.begin(), bytes.end(), memory_.begin() + address);
  std::fill_n(is_known_.begin() + address, bytes.size(), true);
  const auto end = static_cast<std::size_t>(address) + bytes.size();
  for (auto at = static_cast<std::size_t>(address); at + kShortestCopy <= end; ++at) {
    Key key;
    std::copy_n(memory_.begin() + static_cast<std::ptrdiff_t>(at), key.size(), key.begin());
    places_[key].push_back(static_cast<int>(at));
  }
}

void Packing::Forget(int address, int size) {
  std::fill_n(is_known_.begin() + address, size, false);
}

Packing::Match Packing::Longest(std::span<const std::uint8_t> bytes) const {
  Match longest;
  Key key;
  if (bytes.size() < key.size()) return longest;
  std::copy_n(bytes.begin(), key.size(), key.begin());
  const auto places = places_.find(key);
  if (places == places_.end()) return longest;
  const std::size_t most = std::min<std::size_t>(bytes.size(), kLongestCopy);
  const auto newest = std::views::reverse(places->second) | std::views::take(kMostPlaces);
  for (const int address : newest) {
    std::size_t length = 0;
    for (auto at = static_cast<std::size_t>(address);
         length < most && at < kMemory && is_known_[at] && memory_[at] == bytes[length]; ++at) {
      ++length;
    }
    if (static_cast<int>(length) > longest.length) longest = {address, static_cast<int>(length)};
  }
  return longest;
}

Bytes Packing::Packed(std::span<const std::uint8_t> part) const {
  Runs runs;
  for (std::size_t at = 0; at < part.size();) {
    const Match here = Longest(part.subspan(at));
    // A single byte first may lead to a copy that is longer by more.
    const bool is_worth = here.length > runs.CopyCosts() &&
                          (at + 1 == part.size() || Longest(part.subspan(at + 1)).length <= here.length + 1);
    if (is_worth) {
      runs.Copy(here.address, here.length);
      at += static_cast<std::size_t>(here.length);
    } else {
      runs.Literal(part[at++]);
    }
  }
  return runs.Finished();
}

int Packing::UnpackingCycles(std::span<const std::uint8_t> packed) {
  int cycles = kPartCycles;
  for (std::size_t at = 0; packed[at] != 0;) {
    const int count = packed[at];
    const bool is_copy = count >= kCopy;
    cycles += kRunCycles + kByteCycles * (is_copy ? count - kCopy + kShortestCopy : count);
    at += static_cast<std::size_t>(is_copy ? kCopyBytes : 1 + count);
  }
  return cycles;
}

}  // namespace kelvo::c64anim
