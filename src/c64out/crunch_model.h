// What packing and unpacking know about the next nibble: how often each one came in the same context so far.
//
// Each context keeps its sixteen nibbles in a list, the frequent ones first, and a nibble is told by its rank in there.
// Both sides count alike, so no table travels with the data.
#pragma once

#include <array>
#include <cstdint>

namespace kelvo::c64out {

// A prefix code for the ranks 0..15. They fall into four classes, told by 0, 10, 110 and 111; extra bits tell the rank
// within its class.
struct RankCode {
  std::array<int, 4> first, extra_bits;

  // The class of `rank`.
  constexpr int ClassOf(int rank) const {
    int found = 3;
    while (rank < first[static_cast<std::size_t>(found)]) --found;
    return found;
  }
  // The bits that `rank` takes.
  constexpr int Bits(int rank) const {
    const int found = ClassOf(rank);
    return (found < 3 ? found + 1 : 3) + extra_bits[static_cast<std::size_t>(found)];
  }
};

class NibbleModel {
 public:
  // Literals take the contexts 0..15, what is copied and how far the others.
  static constexpr int kAfterCopy = 16, kAfterLiterals = 17, kOffset = 18, kOffsets = 3, kContexts = kOffset + kOffsets;

  NibbleModel();

  int NibbleAt(int context, int rank) const { return List(context)[static_cast<std::size_t>(rank)].nibble; }
  int RankOf(int context, int nibble) const;
  // The code for ranks in `context` now: one for contexts where one nibble comes most of the time, one for the others.
  const RankCode& CodeIn(int context) const;
  // The bits that `nibble` takes in `context` now.
  int Bits(int context, int nibble) const { return CodeIn(context).Bits(RankOf(context, nibble)); }
  // Counts the nibble at `rank`, which moves it before all that came as often as it did.
  void Count(int context, int rank);

 private:
  struct Entry {
    std::uint8_t nibble, count;
  };
  using Entries = std::array<Entry, 16>;

  const Entries& List(int context) const { return lists_[static_cast<std::size_t>(context)]; }

  std::array<Entries, kContexts> lists_;
};

}  // namespace kelvo::c64out
