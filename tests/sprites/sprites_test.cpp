// Sprites: what is captured, and the text that is made of it. Which sources are taken, and that each pixel has its
// pair, is what the fuzz target looks at.
#include <gtest/gtest.h>

#include <tuple>

#include "sprites/sprite_text.h"
#include "support/pictures.h"

namespace kelvo::sprites {
namespace {

using support::Colour;

TEST(CaptureArea, FollowsThePointerInsideThePicture) {
  const auto free = Alignment::kFree, grid = Alignment::kGrid;
  const auto one = CaptureSize::k1x1, four = CaptureSize::k2x2;
  for (const auto& [x, y, size, alignment, left, top] : {std::tuple{80, 100, one, free, 74, 90},
                                                         {1, 1, one, free, 1, 1},
                                                         {160, 200, one, free, 149, 180},
                                                         {160, 200, four, free, 137, 159},
                                                         {13, 22, one, grid, 13, 22},
                                                         {12, 21, one, grid, 1, 1},
                                                         {160, 200, one, grid, 145, 169},
                                                         {160, 200, four, grid, 133, 148}}) {
    const CaptureArea area = CaptureAt({x, y}, size, alignment);
    EXPECT_EQ(std::pair(area.left, area.top), std::pair(left, top)) << x << ", " << y;
  }
}

TEST(Capture, TakesFourSpritesInReadingOrderAndErasesThem) {
  model::PictureImage picture = support::RandomPicture(3);
  const model::PictureImage before = picture;
  const CaptureArea area = CaptureAt({50, 60}, CaptureSize::k2x2, Alignment::kFree);
  const std::vector<Sprite> sprites = Capture(picture, area);
  ASSERT_EQ(sprites.size(), 4U);
  Erase(picture, area);
  for (int y = 1; y <= 200; ++y) {
    for (int x = 1; x <= 160; ++x) {
      const int column = x - area.left, row = y - area.top;
      const bool inside = column >= 0 && column < 24 && row >= 0 && row < 42;
      const int colour = support::ColourAt(before, x, y);
      ASSERT_EQ(support::ColourAt(picture, x, y), inside ? picture.BackgroundColour.Number() : colour);
      if (!inside) continue;
      const Sprite& sprite = sprites[static_cast<std::size_t>(row / 21 * 2 + column / 12)];
      ASSERT_EQ(sprite[static_cast<std::size_t>(row % 21 * 12 + column % 12)].Number(), colour);
    }
  }
}

TEST(MostUsedColours, LeaveTheBackgroundOut) {
  Sprite sprite;
  sprite.fill(Colour(6));
  for (std::size_t i = 0; i < 30; ++i) sprite[i] = Colour(i < 5 ? 1 : i < 12 ? 2 : i < 29 ? 3 : 4);
  EXPECT_EQ(MostUsedColours({sprite}, Colour(6)), (std::vector{Colour(3), Colour(2), Colour(1)}));
  EXPECT_TRUE(MostUsedColours({Sprite{}}, Colour(0)).empty());
}

TEST(SpriteText, HasItsLinesAndItsOwnOrderOfPairs) {
  const Sprite sprite{Colour(1), Colour(2), Colour(3), Colour(4)};
  const std::string binary = SpriteText({sprite}, {Colour(1), Colour(2), Colour(3)}, Notation::kBinary);
  EXPECT_TRUE(binary.starts_with(".byte %01111000,%00000000,%00000000\r\n"));
  EXPECT_TRUE(binary.ends_with("\r\n.byte %00000000\r\n"));
  EXPECT_EQ(std::count(binary.begin(), binary.end(), '\n'), 22);
  const std::string hexadecimal = SpriteText({sprite}, {Colour(1), std::nullopt, Colour(3)}, Notation::kHexadecimal);
  EXPECT_TRUE(hexadecimal.starts_with(".byte $48,$00,$00,$00,$00,$00,$00,$00\r\n"));
  EXPECT_TRUE(hexadecimal.ends_with(",$00\r\n"));
  EXPECT_EQ(std::count(hexadecimal.begin(), hexadecimal.end(), '\n'), 8);
}

}  // namespace
}  // namespace kelvo::sprites
