#include "editing/cell_slots.h"

#include <algorithm>
#include <array>

#include "model/pixel_colour.h"

namespace kelvo::editing {
namespace {

using model::BitPair;
using model::kOwnSlots;

template <typename Test>
std::optional<BitPair> FirstSlot(Test&& test) {
  const auto found = std::find_if(kOwnSlots.begin(), kOwnSlots.end(), test);
  return found == kOwnSlots.end() ? std::nullopt : std::optional(*found);
}

}  // namespace

bool IsColorUsed(const model::PictureImage& picture, int base, BitPair pair) {
  for (int line = 1; line <= 8; ++line) {
    const std::uint8_t byte = picture.Bitmap.at(static_cast<std::size_t>(base + line));
    for (int position = 1; position <= 4; ++position) {
      if (model::PairAt(byte, position) == pair) return true;
    }
  }
  return false;
}

BitPair GetLeastUsedCol(const model::PictureImage& before, int base) {
  std::array<int, 4> count{};
  for (int line = 0; line <= 7; ++line) {
    const std::uint8_t byte = before.Bitmap.at(static_cast<std::size_t>(base + line));
    for (int position = 1; position <= 4; ++position) ++count[static_cast<std::size_t>(model::PairAt(byte, position))];
  }
  return *std::min_element(kOwnSlots.begin(), kOwnSlots.end(), [&count](BitPair a, BitPair b) {
    return count[static_cast<std::size_t>(a)] < count[static_cast<std::size_t>(b)];
  });
}

std::optional<BitPair> GetColorBinForChar(const model::PictureImage& before, model::C64Colour colour, int cell,
                                          int base) {
  const auto shows = [&](model::C64Colour wanted) {
    return [&before, cell, wanted](BitPair slot) { return model::ColourInCell(before, cell, slot) == wanted; };
  };
  if (const auto same = FirstSlot(shows(colour))) return same;
  if (colour == before.BackgroundColour) return BitPair::k00;
  if (const auto unused = FirstSlot([&](BitPair slot) { return !IsColorUsed(before, base, slot); })) return unused;
  return FirstSlot(shows(before.BackgroundColour));
}

}  // namespace kelvo::editing
