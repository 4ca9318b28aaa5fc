// Sprites: what is captured, and the text that is made of it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

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
  struct Case {
    model::PixelPoint pointer;
    CaptureSize size;
    Alignment alignment;
    int left, top;
  };
  const auto free = Alignment::kFree, grid = Alignment::kGrid;
  const auto one = CaptureSize::k1x1, four = CaptureSize::k2x2;
  for (const Case& c : {Case{{80, 100}, one, free, 74, 90},
                        {{1, 1}, one, free, 1, 1},
                        {{160, 200}, one, free, 149, 180},
                        {{160, 200}, four, free, 137, 159},
                        {{13, 22}, one, grid, 13, 22},
                        {{12, 21}, one, grid, 1, 1},
                        {{160, 200}, one, grid, 145, 169},
                        {{160, 200}, four, grid, 133, 148}}) {
    const CaptureArea area = CaptureAt(c.pointer, c.size, c.alignment);
    EXPECT_EQ(std::pair(area.left, area.top), std::pair(c.left, c.top)) << c.pointer.x << ", " << c.pointer.y;
    EXPECT_LE(area.left + area.Width() - 1, 160);
    EXPECT_LE(area.top + area.Height() - 1, 200);
  }
}

TEST(Capture, TakesFourSpritesInReadingOrderAndErasesThem) {
  model::PictureImage picture = support::RandomPicture(3);
  const CaptureArea area = CaptureAt({50, 60}, CaptureSize::k2x2, Alignment::kFree);
  const std::vector<Sprite> sprites = Capture(picture, area);
  ASSERT_EQ(sprites.size(), 4U);
  for (int i = 0; i < 4; ++i) {
    const int left = area.left + i % 2 * 12, top = area.top + i / 2 * 21;
    EXPECT_EQ(sprites[static_cast<std::size_t>(i)][0].Number(), support::ColourAt(picture, left, top));
    EXPECT_EQ(sprites[static_cast<std::size_t>(i)][251].Number(), support::ColourAt(picture, left + 11, top + 20));
  }
  const model::PictureImage before = picture;
  Erase(picture, area);
  for (int y = 1; y <= 200; ++y) {
    for (int x = 1; x <= 160; ++x) {
      const bool inside = x >= area.left && x < area.left + 24 && y >= area.top && y < area.top + 42;
      ASSERT_EQ(support::ColourAt(picture, x, y),
                inside ? picture.BackgroundColour.Number() : support::ColourAt(before, x, y));
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
  Sprite sprite;
  sprite[0] = Colour(1);
  sprite[1] = Colour(2);
  sprite[2] = Colour(3);
  sprite[3] = Colour(4);
  const std::string binary = SpriteText({sprite}, {Colour(1), Colour(2), Colour(3)}, Notation::kBinary);
  EXPECT_TRUE(binary.starts_with(".byte %01111000,%00000000,%00000000\r\n"));
  EXPECT_TRUE(binary.ends_with("\r\n.byte %00000000\r\n"));
  EXPECT_EQ(std::count(binary.begin(), binary.end(), '\n'), 22);
  const std::string hexadecimal = SpriteText({sprite}, {Colour(1), std::nullopt, Colour(3)}, Notation::kHexadecimal);
  EXPECT_TRUE(hexadecimal.starts_with(".byte $48,$00,$00,$00,$00,$00,$00,$00\r\n"));
  EXPECT_TRUE(hexadecimal.ends_with(",$00\r\n"));
  EXPECT_EQ(std::count(hexadecimal.begin(), hexadecimal.end(), '\n'), 8);
}

TEST(SpriteText, AssemblesToTheCapturedBytes) {
  if (std::system("command -v 64tass >/dev/null") != 0) GTEST_SKIP() << "this needs 64tass";
  const support::TempFolder folder;
  const model::PictureImage picture = support::RandomPicture(9);
  const ChosenColours colours{Colour(5), Colour(9), Colour(12)};
  for (const CaptureSize size : {CaptureSize::k1x1, CaptureSize::k2x2}) {
    const std::vector<Sprite> sprites = Capture(picture, CaptureAt({70, 70}, size, Alignment::kFree));
    app::Bytes expected;
    for (const Sprite& sprite : sprites) {
      for (std::size_t byte = 0; byte < 63; ++byte) {
        int value = 0;
        for (std::size_t pixel = 0; pixel < 4; ++pixel) {
          const int colour = sprite[byte * 4 + pixel].Number();
          value = value * 4 + (colour == 5 ? 1 : colour == 9 ? 3 : colour == 12 ? 2 : 0);
        }
        expected.push_back(static_cast<std::uint8_t>(value));
      }
      expected.push_back(0);
    }
    for (const Notation notation : {Notation::kBinary, Notation::kHexadecimal}) {
      const std::string text = SpriteText(sprites, colours, notation);
      support::WriteFile(folder / "sprite.asm", {text.begin(), text.end()});
      const std::string path = folder.Path().string();
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
  for (const std::size_t size : {0UL, 10003UL, 10049UL, 10242UL}) {
    try {
      load(size);
      ADD_FAILURE() << size;
    } catch (const std::runtime_error& error) {
      EXPECT_STREQ(error.what(), "Felaktig filstorlek. Bitmap/PRG-fil ska vara 10050 eller 10241 bytes");
    }
  }
  EXPECT_THROW(LoadSpriteSource("/gone"), std::runtime_error);
}

}  // namespace
}  // namespace kelvo::sprites
