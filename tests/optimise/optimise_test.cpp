// The whole-picture passes: what changes, and what must not.
#include <gtest/gtest.h>

#include "optimise/background_colour.h"
#include "support/pictures.h"

namespace kelvo::optimise {
namespace {

using model::PictureImage;

class RecordingCells final : public CellDisplay {
 public:
  void ShowCell(int cell) override { cells.push_back(cell); }
  std::vector<int> cells;
};

TEST(OptimizeBackground, KeepsTheLookAndLeavesNoOtherPairForTheBackground) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    PictureImage picture = support::RandomPicture(seed);
    const PictureImage before = picture;
    app::NoProgress none;
    RecordingCells display;
    OptimizeBackgroundColor(picture, none, display);
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
    OptimizeBackgroundColor(picture, none, display);
    EXPECT_EQ(picture, expected);
    EXPECT_EQ(display.cells.size(), 2000U);
    EXPECT_EQ(display.cells.back(), 1000);
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
