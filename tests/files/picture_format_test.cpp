// Each byte of a picture file goes where its format says.
#include "files/picture_format.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>

#include "support/pictures.h"

namespace kelvo::files {
namespace {

using model::C64Colour;
using model::PictureImage;
using support::CountingBytes;

std::uint8_t CountingByte(std::size_t place) {
  return static_cast<std::uint8_t>(place * 7 + 3);
}

const C64Colour kBefore = C64Colour::FromByte(6);

TEST(PictureFormat, BlocksReachTheArraysFromIndexOne) {
  struct Case {
    FormatType type;
    std::size_t size, colour, screen, bitmap;  // file offsets of the blocks
  };
  for (const Case& c : {Case{kOwnType, 10050, 2, 1026, 2050},
                        {kVidcom64Type, 10050, 2, 1026, 2050},
                        {kKoaType, 10003, 9002, 8002, 2},
                        {kGeneralType, 10050, 2, 1026, 2050}}) {
    SCOPED_TRACE(c.type);
    const PictureImage picture = Decode(FormatOf(c.type), CountingBytes(c.size), kBefore);
    EXPECT_EQ(picture.LoadAddressLow, CountingByte(0));
    EXPECT_EQ(picture.LoadAddressHigh, CountingByte(1));
    for (std::size_t cell = 1; cell <= 1000; ++cell) {
      ASSERT_EQ(picture.ColourMemory[cell], CountingByte(c.colour + cell - 1));
      ASSERT_EQ(picture.ScreenMemory[cell], CountingByte(c.screen + cell - 1));
    }
    for (std::size_t i = 1; i < 8000; ++i) ASSERT_EQ(picture.Bitmap[i], CountingByte(c.bitmap + i - 1));
    EXPECT_EQ(picture.Bitmap[0], CountingByte(c.bitmap - 1));  // the byte before the block
    EXPECT_EQ(picture.Bitmap[8000], 255);                      // the last byte is never read
    EXPECT_EQ(picture.ScreenMemory[1024], 255);
  }
}

TEST(PictureFormat, BackgroundComesFromItsPlaceOrStays) {
  struct Case {
    const char* what;
    FormatType type;
    std::size_t size, place;
    std::uint8_t byte;
    int expected;
  };
  for (const Case& c : {Case{"own", kOwnType, 10050, 2049, 11, 11},
                        {"own, too large", kOwnType, 10050, 2049, 16, 6},
                        {"Vidcom64 carries none", kVidcom64Type, 10050, 2049, 11, 6},
                        {"Koala: colour of cell 999", kKoaType, 10003, 10000, 4, 4},
                        {"Koala: not the last byte", kKlaType, 10003, 10002, 4, 6}}) {
    SCOPED_TRACE(c.what);
    app::Bytes bytes(c.size, 0xF0);
    bytes[c.place] = c.byte;
    EXPECT_EQ(Decode(FormatOf(c.type), bytes, kBefore).BackgroundColour.Number(), c.expected);
  }
}

TEST(PictureFormat, TakesOnlyItsOwnSizes) {
  const std::string message = "Felaktig filstorlek.";
  const std::tuple<FormatType, std::set<std::size_t>, std::string> cases[] = {
      {kOwnType, {10050, 10057}, message},
      {kVidcom64Type, {10050}, message + " Giltig VIDCOM64-fil ska vara 10050 bytes"},
      {kKoaType, {10003}, message + " Giltig KOALA PAINT-fil ska vara 10003 bytes"},
      {kKlaType, {10003}, message + " Giltig KOALA PAINT-fil ska vara 10003 bytes"}};
  for (const auto& [type, good, told] : cases) {
    for (const std::size_t size : {0UL, 1UL, 10002UL, 10003UL, 10004UL, 10049UL, 10050UL, 10051UL, 10057UL}) {
      SCOPED_TRACE(testing::Message() << "type " << type << ", size " << size);
      try {
        Decode(FormatOf(type), CountingBytes(size), kBefore);
        EXPECT_TRUE(good.contains(size));
      } catch (const FormatError& error) {
        EXPECT_FALSE(good.contains(size));
        EXPECT_EQ(error.what(), told);
      }
    }
  }
}

TEST(PictureFormat, OwnFormatIsWrittenSignedAndAsItWasReadButForTheLastByteOfABlock) {
  app::Bytes expected = CountingBytes(10050);
  PictureImage picture = Decode(FormatOf(kOwnType), expected, kBefore);
  Sign(picture);
  const std::uint8_t signature[] = {11, 5, 12, 22, 15, 5, 4, picture.BackgroundColour.Byte()};
  std::copy(std::begin(signature), std::end(signature), expected.begin() + 2042);
  expected[1025] = expected.back() = 255;
  EXPECT_EQ(Encode(picture), expected);
}

TEST(PictureFormat, TypeFollowsExtensionThenSize) {
  for (const auto& [path, size, type] : {std::tuple{"a/b.KVP", 10003U, kOwnType},
                                         {"b.lmp", 10057U, kOwnType},
                                         {"b.Vid", 10050U, kVidcom64Type},
                                         {"b.koa", 1U, kKoaType},
                                         {"b.kla", 10003U, kKlaType},
                                         {"PIC.PRG", 10003U, kKoaType},
                                         {"PIC.PRG", 10050U, kGeneralType},
                                         {"kla", 5U, kGeneralType}}) {
    EXPECT_EQ(TypeOfFile(path, size), type) << path;
  }
  EXPECT_EQ(OpenFilter(),
            "Kelvo-files (*.kvp;*.lmp)|*.kvp;*.lmp|Vidcom64 (*.vid)|*.vid|Koala Paint (*.koa)|*.koa|"
            "Koala Paint (*.kla)|*.kla");
}

}  // namespace
}  // namespace kelvo::files
