// Where pixels lie in the bytes, and what they show.
#include <gtest/gtest.h>

#include <stdexcept>
#include <tuple>

#include "model/number_text.h"
#include "model/palette.h"
#include "model/pixel_colour.h"
#include "support/pictures.h"

namespace kelvo::model {
namespace {

TEST(PixelPlace, FollowsTheC64sOrderOfBytes) {
  struct Case {
    int x, y, byte, position, cell;
  };
  for (const Case& c : {Case{1, 1, 1, 1, 1},
                        {160, 200, 8000, 4, 1000},
                        {5, 1, 9, 1, 2},
                        {1, 9, 321, 1, 41},
                        {4, 8, 8, 4, 1},
                        {158, 193, 7993, 2, 1000}}) {
    const PixelPlace place = LookUpPixel(c.x, c.y);
    EXPECT_EQ(std::tuple(place.byte, place.position, place.cell), std::tuple(c.byte, c.position, c.cell)) << c.byte;
    EXPECT_EQ(CellOfByte(place.byte), c.cell);
    EXPECT_EQ(BaseOfCell(place.cell), place.base);
  }
  EXPECT_LT(LookUpPixel(1, 0).byte, 0);
  EXPECT_THROW(GetPixelData(PictureImage{}, 0, 1), std::out_of_range);
  EXPECT_THROW(GetPixelData(PictureImage{}, 1, 201), std::out_of_range);
}

TEST(PixelColour, ComesFromTheSlotThatTheBitPairNames) {
  PictureImage picture{.BackgroundColour = C64Colour::FromByte(14)};
  picture.Bitmap[1] = 0b11'10'01'00;
  picture.ScreenMemory[1] = 0x5A;
  picture.ColourMemory[1] = 0xF7;  // the high nibble is junk
  const int expected[] = {7, 10, 5, 14};
  for (int x = 1; x <= 4; ++x) {
    EXPECT_EQ(GetPixelData(picture, x, 1).colour.Number(), expected[x - 1]);
    EXPECT_EQ(GetPixelColour(picture, 0b11'10'01'00, x, 1).Number(), expected[x - 1]);
  }
  EXPECT_EQ(GetColFromBits("", ColoursOfCell(picture, 1), picture.BackgroundColour).Number(), 14);
  EXPECT_EQ(GetColFromBits("10", ColoursOfCell(picture, 1), picture.BackgroundColour).Number(), 10);

  const DetachedCell detached{0, 0xF7, 0x5A};
  EXPECT_EQ(GetPixelColour(detached, 0b11'10'01'00, 1, picture.BackgroundColour).Number(), 0);  // taken whole: above 15
  EXPECT_EQ(GetPixelColour(detached, 0b11'10'01'00, 3, picture.BackgroundColour).Number(), 5);
}

TEST(BitPair, IsPlacedAmongItsNeighbours) {
  EXPECT_EQ(WithPairAt(0x00, 1, BitPair::k11), 0b11'00'00'00);
  EXPECT_EQ(WithPairAt(0xFF, 2, BitPair::k01), 0b11'01'11'11);
  EXPECT_EQ(WithPairAt(0x1B, 3, BitPair::k00), 0b00'01'00'11);
  EXPECT_EQ(WithPairAt(0x1B, 4, BitPair::k10), 0b00'01'10'10);
}

TEST(NumberText, ConvertsBothWays) {
  EXPECT_EQ(BitPairFromText(ToText(BitPair::k10)), BitPair::k10);
  EXPECT_EQ(BitPairFromText(""), std::nullopt);
  EXPECT_EQ(ByteToBinary(0x105), "00000101");
  EXPECT_EQ(BinaryToNumber("1x1"), 5);
  EXPECT_EQ(HexDigitValue('f'), 15);
  EXPECT_EQ(HexDigitValue('g'), 0);
  EXPECT_EQ(ToHex(11), "0B");
  EXPECT_EQ(ToHex(0x865, 4), "0865");
}

TEST(Palette, PacksDisplayColoursBothWays) {
  EXPECT_EQ(C64ColourToRgb(2), 137U + 64 * 256 + 54 * 65536);
  EXPECT_EQ(C64ColourToRgb(16), 0U);
  EXPECT_EQ(C64ColourToRgb(-1), 0U);
  EXPECT_EQ(SurfaceColour(C64Colour::FromByte(2)), 0xFF894036U);
  EXPECT_EQ(ColourName(C64Colour::FromByte(10)), "0A Light red");
}

}  // namespace
}  // namespace kelvo::model
