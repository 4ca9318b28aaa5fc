// Each byte of a picture file goes where its format says.
#include "files/picture_format.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>

#include "support/files.h"

namespace kelvo::files {
namespace {

using model::C64Colour;
using model::PictureImage;
using support::CountingBytes;

const C64Colour kBefore = C64Colour::FromByte(6);

TEST(PictureFormat, BlocksReachTheArraysFromIndexOne) {
  // The file's size, and the offsets in it of the blocks of colours, screen and bitmap.
  for (const auto& [type, size, colour, screen, bitmap] : {std::tuple{kOwnType, 10050U, 2U, 1026U, 2050U},
                                                           {kVidcom64Type, 10050U, 2U, 1026U, 2050U},
                                                           {kKoaType, 10003U, 9002U, 8002U, 2U},
                                                           {kKlaType, 10003U, 9002U, 8002U, 2U},
                                                           {kGeneralType, 10050U, 2U, 1026U, 2050U}}) {
    SCOPED_TRACE(type);
    const app::Bytes file = CountingBytes(size);
    const PictureImage picture = Decode(FormatOf(type), file, kBefore);
    EXPECT_EQ(picture.LoadAddressLow, file[0]);
    EXPECT_EQ(picture.LoadAddressHigh, file[1]);
    for (std::size_t cell = 1; cell <= 1000; ++cell) {
      ASSERT_EQ(picture.ColourMemory[cell], file[colour + cell - 1]);
      ASSERT_EQ(picture.ScreenMemory[cell], file[screen + cell - 1]);
    }
    // From the byte before the block on; the last byte is never read.
    for (std::size_t i = 0; i < 8000; ++i) ASSERT_EQ(picture.Bitmap[i], file[bitmap + i - 1]);
    EXPECT_EQ(picture.Bitmap[8000], 255);
    EXPECT_EQ(picture.ScreenMemory[1024], 255);
  }
}

TEST(PictureFormat, BackgroundComesFromItsPlaceOrStays) {
  for (const auto& [what, type, size, place, byte, expected] :
       {std::tuple{"own", kOwnType, 10050U, 2049U, 11, 11},
        {"own, too large", kOwnType, 10050U, 2049U, 16, 6},
        {"Vidcom64 carries none", kVidcom64Type, 10050U, 2049U, 11, 6},
        {"Koala: colour of cell 999", kKoaType, 10003U, 10000U, 4, 4},
        {"Koala: not the last byte", kKlaType, 10003U, 10002U, 4, 6}}) {
    app::Bytes bytes(size, 0xF0);
    bytes[place] = static_cast<std::uint8_t>(byte);
    EXPECT_EQ(Decode(FormatOf(type), bytes, kBefore).BackgroundColour.Number(), expected) << what;
  }
}

TEST(PictureFormat, TakesOnlyItsOwnSizes) {
  const std::string message = "Felaktig filstorlek.", koala = " Giltig KOALA PAINT-fil ska vara 10003 bytes";
  const std::tuple<FormatType, std::set<std::size_t>, std::string> cases[] = {
      {kOwnType, {10050, 10057}, message},
      {kVidcom64Type, {10050}, message + " Giltig VIDCOM64-fil ska vara 10050 bytes"},
      {kKoaType, {10003}, message + koala},
      {kKlaType, {10003}, message + koala}};
  for (const auto& [type, good, expected] : cases) {
    for (const std::size_t size : {0UL, 1UL, 10002UL, 10003UL, 10004UL, 10049UL, 10050UL, 10051UL, 10057UL}) {
      std::string told;
      try {
        Decode(FormatOf(type), CountingBytes(size), kBefore);
      } catch (const FormatError& error) {
        told = error.what();
      }
      EXPECT_EQ(told, good.contains(size) ? "" : expected) << "type " << type << ", size " << size;
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
                                         {"b.gg", 10003U, kByContentType},
                                         {"kla", 5U, kGeneralType}}) {
    EXPECT_EQ(TypeOfFile(path, size), type) << path;
  }
  std::vector<std::string_view> patterns;
  for (const PictureFormat& format : OfferedFormats()) patterns.push_back(format.patterns);
  EXPECT_EQ(patterns, (std::vector<std::string_view>{"*.kvp *.lmp", "*.vid", "*.koa", "*.kla",
                                                     "*.ocp *.art *.p64 *.drz *.gg *.prg"}));
}

}  // namespace
}  // namespace kelvo::files
