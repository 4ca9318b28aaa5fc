#include "model/cell_use.h"

#include <algorithm>

#include "model/cell_view.h"
#include "model/pixel_colour.h"

namespace kelvo::model {

int FreeOwnColours(const PictureImage& picture, int cell) {
  const auto count = CountPairs(picture, cell);
  return static_cast<int>(std::count_if(kOwnSlots.begin(), kOwnSlots.end(), [&](BitPair slot) {
    return count[static_cast<std::size_t>(slot)] == 0 || ColourInCell(picture, cell, slot) == picture.BackgroundColour;
  }));
}

std::array<int, C64Colour::kCount> CellsShowing(const PictureImage& picture) {
  std::array<int, C64Colour::kCount> cells{};
  for (int cell = 1; cell <= PictureImage::kCells; ++cell) {
    const auto count = CountPairs(picture, cell);
    std::array<bool, C64Colour::kCount> shows{};
    for (const BitPair pair : {BitPair::k00, BitPair::k01, BitPair::k10, BitPair::k11}) {
      if (count[static_cast<std::size_t>(pair)] == 0) continue;
      shows[static_cast<std::size_t>(ColourInCell(picture, cell, pair).Number())] = true;
    }
    std::transform(cells.begin(), cells.end(), shows.begin(), cells.begin(),
                   [](int so_far, bool shown) { return so_far + (shown ? 1 : 0); });
  }
  return cells;
}

}  // namespace kelvo::model
