#include "c64out/crunch_model.h"

#include <utility>

namespace kelvo::c64out {
namespace {

constexpr RankCode kOneNibbleLeads{{0, 1, 5, 9}, {0, 2, 2, 3}};
constexpr RankCode kAllAlike{{0, 2, 4, 8}, {1, 1, 2, 3}};

}  // namespace

// A nibble like its context is taken for the likeliest at first: pictures repeat what stands above.
NibbleModel::NibbleModel() {
  for (int context = 0; context < kContexts; ++context) {
    for (int rank = 0; rank < 16; ++rank) {
      lists_[static_cast<std::size_t>(context)][static_cast<std::size_t>(rank)] = {
          static_cast<std::uint8_t>(rank ^ (context & 15)), 0};
    }
  }
}

int NibbleModel::RankOf(int context, int nibble) const {
  int rank = 0;
  while (NibbleAt(context, rank) != nibble) ++rank;
  return rank;
}

const RankCode& NibbleModel::CodeIn(int context) const {
  const Entries& list = List(context);
  return list[0].count / 2 >= list[1].count ? kOneNibbleLeads : kAllAlike;
}

void NibbleModel::Count(int context, int rank) {
  Entries& list = lists_[static_cast<std::size_t>(context)];
  Entry& entry = list[static_cast<std::size_t>(rank)];
  std::size_t target = static_cast<std::size_t>(rank);
  while (target > 0 && list[target - 1].count == entry.count) --target;
  std::swap(entry.nibble, list[target].nibble);
  if (list[target].count < 255) ++list[target].count;
}

}  // namespace kelvo::c64out
