// Sprites: what is captured, and the text that is made of it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>

#include "app/path_text.h"
#include "sprites/sprite_source.h"
#include "sprites/sprite_text.h"
#include "support/painted.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

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

// The pairs that the lists' colours have in a sprite.
int PairOf(model::C64Colour colour) {
  return colour == Colour(5) ? 1 : colour == Colour(9) ? 3 : colour == Colour(12) ? 2 : 0;
}

TEST(SpriteText, AssemblesToTheCapturedBytes) {
  if (std::system("command -v 64tass >/dev/null") != 0) GTEST_SKIP() << "this needs 64tass";
  const support::TempFolder folder;
  const std::string path = folder.Path().string();
  for (const CaptureSize size : {CaptureSize::k1x1, CaptureSize::k2x2}) {
    const auto sprites = Capture(support::RandomPicture(9), CaptureAt({70, 70}, size, Alignment::kFree));
    app::Bytes expected;
    for (const Sprite& sprite : sprites) {
      for (auto at = sprite.begin(); at != sprite.end(); at += 4) {
        const int byte = PairOf(at[0]) << 6 | PairOf(at[1]) << 4 | PairOf(at[2]) << 2 | PairOf(at[3]);
        expected.push_back(static_cast<std::uint8_t>(byte));
      }
      expected.push_back(0);
    }
    for (const Notation notation : {Notation::kBinary, Notation::kHexadecimal}) {
      support::WriteText(folder / "sprite.asm", SpriteText(sprites, {Colour(5), Colour(9), Colour(12)}, notation));
      ASSERT_EQ(std::system(("64tass -q -b -o " + path + "/sprite.bin " + path + "/sprite.asm").c_str()), 0);
      EXPECT_EQ(support::ReadFile(folder / "sprite.bin"), expected);
    }
  }
}

TEST(SpriteSource, TakesTwoSizes) {
  const support::TempFolder folder;
  const auto load = [&](std::size_t size) {
    support::WriteFile(folder / "source", support::CountingBytes(size));
    return LoadSpriteSource(app::TextFromPath(folder / "source"));
  };
  EXPECT_EQ(load(10050), load(10241));
  for (const std::size_t size : {0UL, 10003UL, 10049UL, 10242UL}) EXPECT_THROW(load(size), std::runtime_error) << size;
  EXPECT_THROW(LoadSpriteSource("/gone"), std::runtime_error);
}

}  // namespace
}  // namespace kelvo::sprites
