// The whole-picture passes: what changes, and what must not.
#include <gtest/gtest.h>

#include "optimise/background_colour.h"
#include "support/pictures.h"

namespace kelvo::optimise {
namespace {

using model::PictureImage;

TEST(OptimizeBackground, KeepsTheLookAndLeavesNoOtherPairForTheBackground) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    PictureImage picture = support::RandomPicture(seed);
    const PictureImage before = picture;
    app::NoProgress none;
    std::vector<int> cells;
    const ShowCell show = [&](int cell) { cells.push_back(cell); };
    OptimizeBackgroundColor(picture, none, show);
    for (int y = 1; y <= 200; ++y) {
      for (int x = 1; x <= 160; ++x) {
        const model::PixelData pixel = model::GetPixelData(picture, x, y);
        ASSERT_EQ(pixel.colour, model::GetPixelData(before, x, y).colour);
        ASSERT_EQ(pixel.pair == model::BitPair::k00, pixel.colour == picture.BackgroundColour);
      }
    }
    PictureImage expected = before;
    expected.Bitmap = picture.Bitmap;
    EXPECT_EQ(picture, expected);
    OptimizeBackgroundColor(picture, none, show);
    EXPECT_EQ(picture, expected);
    EXPECT_EQ(cells.size(), 2000U);
    EXPECT_EQ(cells.back(), 1000);
  }
}

TEST(OptimizeChar, TouchesItsOwnCellAlone) {
  PictureImage picture = support::PictureWithCell(2, support::kAllSlots, 6, 6, 3, 6);
  support::SetCell(picture, 1, support::kAllSlots, 6, 6, 3);
  support::SetCell(picture, 3, support::kAllSlots, 6, 6, 3);
  PictureImage expected = picture;
  support::SetCell(expected, 2, {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x10}, 6, 6, 3);
  OptimizeChar(picture, 8);
  EXPECT_EQ(picture, expected);
  OptimizeChar(picture, -1);
  EXPECT_EQ(picture, expected);
}

}  // namespace
}  // namespace kelvo::optimise
