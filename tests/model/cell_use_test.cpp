// How many colours of its own a cell has free, which cells show a colour, and what another background would change.
#include "model/cell_use.h"

#include <gtest/gtest.h>

#include "editing/pixel_plot.h"
#include "optimise/what_if_background.h"
#include "support/pictures.h"

namespace kelvo::model {
namespace {

using support::Colour;
using support::kAllSlots;

TEST(CellUse, CountsWhatANewColourMayTake) {
  using Lines = std::array<std::uint8_t, 8>;
  for (const auto& [lines, c11, c10, c01, free] : {std::tuple{Lines{}, 1, 2, 3, 3},
                                                   {Lines{0xFF}, 1, 2, 3, 2},
                                                   {Lines{0, 0, 0, 0, 0, 0, 0, 0x06}, 1, 2, 3, 1},
                                                   {kAllSlots, 1, 6, 3, 1},
                                                   {kAllSlots, 6, 6, 6, 3},
                                                   {kAllSlots, 1, 1, 1, 0}}) {
    EXPECT_EQ(FreeOwnColours(support::PictureWithCell(42, lines, c11, c10, c01, 6), 42), free);
  }
}

TEST(CellUse, AFullCellIsOneThatPaintingRefuses) {
  const PictureImage picture = support::BlotchyPicture(3);  // of colours below 6
  for (int cell = 1; cell <= 1000; ++cell) {
    PictureImage painted = picture;
    const int x = (cell - 1) % 40 * 4 + 1, y = (cell - 1) / 40 * 8 + 1;
    const auto result = editing::PlotPixel(painted, x, y, Colour(9), editing::FullCell::kRefuse);
    EXPECT_EQ(FreeOwnColours(picture, cell) == 0, result == editing::PlotResult::kCellFull) << cell;
  }
}

TEST(CellUse, CountsTheCellsOfEachColourOnce) {
  PictureImage picture = support::PictureWithCell(1, kAllSlots, 7, 7, 8, 6);
  support::SetCell(picture, 1000, {0, 0, 0, 0, 0, 0, 0, 0x01}, 9, 9, 7);
  std::array<int, 16> expected{};
  expected[6] = 1000;
  expected[7] = 2;
  expected[8] = 1;
  EXPECT_EQ(CellsShowing(picture), expected);
}

TEST(WhatIfBackground, TellsRoomFromClash) {
  PictureImage picture = support::PictureWithCell(1, kAllSlots, 1, 2, 3, 0);    // shows the background
  support::SetCell(picture, 2, {85, 85, 85, 85, 170, 170, 170, 255}, 1, 4, 5);  // shows none
  support::SetCell(picture, 3, {85, 85, 85, 85, 170, 170, 170, 255}, 1, 0, 5);  // loses as much as it gains
  support::SetCell(picture, 1000, {85, 85, 85, 85, 85, 85, 85, 85}, 2, 2, 5);   // others are unused
  std::array<optimise::BackgroundEffect, 16> expected{};
  expected[1] = {.gain_room = 1, .clash = 1};
  expected[2] = {.clash = 1};
  expected[3] = {.clash = 1};
  expected[4] = {.gain_room = 1};
  expected[5] = {.gain_room = 2};
  EXPECT_EQ(optimise::WhatIfBackground(picture), expected);
}

}  // namespace
}  // namespace kelvo::model
