// Files of every kind that Kelvo knows are told by their bytes and read to the last one, and so is what it exports.
#include <gtest/gtest.h>

#include "files/packed_koala.h"
#include "files/picture_content.h"
#include "support/files.h"
#include "support/pictures.h"

namespace kelvo::files {
namespace {

using model::PictureImage;
using support::RandomPicture;

// Where the parts of a file of one kind lie, from its first byte on.
struct Layout {
  const char* name;
  std::size_t size;
  int load_address;
  FormatType type;
  std::size_t bitmap, screen, colours, background;
};

constexpr Layout kLayouts[] = {
    {"Koala without a load address", 10001, -1, kKoaType, 0, 8000, 9000, 10000},
    {"Koala", 10003, 0x6000, kKoaType, 2, 8002, 9002, 10002},
    {"Koala, moved", 10003, 0x4400, kKoaType, 2, 8002, 9002, 10002},
    {"Koala and a byte", 10004, 0x6000, kKoaType, 2, 8002, 9002, 10002},
    {"Koala and three bytes", 10006, 0x2000, kKoaType, 2, 8002, 9002, 10002},
    {"Advanced Art Studio", 10018, 0x2000, kArtStudioType, 2, 8002, 9018, 9003},
    {"Picasso64", 10050, 0x1800, kPicasso64Type, 2050, 1026, 2, 2049},
    {"DrazPaint", 10051, 0x5800, kDrazPaintType, 2050, 1026, 2, 10050},
    {"Vidcom64", 10050, 0x5800, kVidcom64Type, 2050, 1026, 2, 2026},
};

app::Bytes FileOf(const Layout& layout, const PictureImage& picture) {
  app::Bytes file = support::CountingBytes(layout.size);
  if (layout.load_address >= 0) {
    file[0] = static_cast<std::uint8_t>(layout.load_address & 0xFF);
    file[1] = static_cast<std::uint8_t>(layout.load_address >> 8);
  }
  const auto put = [&](const auto& memory, int count, std::size_t at) {
    std::copy_n(memory.begin() + 1, count, file.begin() + static_cast<std::ptrdiff_t>(at));
  };
  put(picture.Bitmap, 8000, layout.bitmap);
  put(picture.ScreenMemory, 1000, layout.screen);
  put(picture.ColourMemory, 1000, layout.colours);
  file[layout.background] = static_cast<std::uint8_t>(0x50 | picture.BackgroundColour.Byte());
  return file;
}

// What a C64 has of a picture: nothing spare.
void ExpectSamePicture(const PictureImage& one, const PictureImage& other) {
  const auto same = [](const auto& a, const auto& b, int count) {
    return std::equal(a.begin() + 1, a.begin() + 1 + count, b.begin() + 1);
  };
  EXPECT_TRUE(same(one.Bitmap, other.Bitmap, 8000));
  EXPECT_TRUE(same(one.ScreenMemory, other.ScreenMemory, 1000));
  EXPECT_TRUE(same(one.ColourMemory, other.ColourMemory, 1000));
  EXPECT_EQ(one.BackgroundColour, other.BackgroundColour);
}

PictureImage DecodeContent(const app::Bytes& bytes) {
  return DecodeAny(kByContentType, bytes, support::Colour(0), Reading::kDocumented);
}

TEST(PictureKinds, AreToldBySizeAndLoadAddressAndReadToTheLastByte) {
  const PictureImage picture = RandomPicture(11);
  for (const Layout& layout : kLayouts) {
    SCOPED_TRACE(layout.name);
    const app::Bytes file = FileOf(layout, picture);
    EXPECT_EQ(ContentOf(file).type, layout.type);
    ExpectSamePicture(DecodeContent(file), picture);
  }
  for (const std::size_t size : {0U, 1U, 2U, 10002U, 10018U, 10049U, 10051U, 65536U}) {
    EXPECT_THROW(DecodeContent(support::CountingBytes(size)), UnknownPicture) << size;
    EXPECT_THROW(DecodeAny(kOwnType, support::CountingBytes(size), {}, Reading::kExact), FormatError) << size;
  }
}

// What the two readings take from a file of 10003 or 10050 bytes.
TEST(PictureKinds, ExactReadingTakesTheLastByteAndTheTrueBackground) {
  const PictureImage picture = RandomPicture(12);
  for (const std::size_t kind : {1U, 8U}) {
    const app::Bytes file = FileOf(kLayouts[kind], picture);
    const PictureFormat& format = FormatOf(kLayouts[kind].type);
    ExpectSamePicture(Decode(format, file, support::Colour(3), Reading::kExact), picture);
    EXPECT_TRUE(ReadsDifferently(format, file, support::Colour(3)));
  }
  PictureImage plain = picture;
  plain.ColourMemory[999] = plain.ColourMemory[1000] = plain.BackgroundColour.Byte();
  for (const std::uint8_t last : std::initializer_list<std::uint8_t>{
           255, 0}) {  // what stands there while it is not read, and what looks the same
    plain.Bitmap[8000] = last;
    EXPECT_FALSE(ReadsDifferently(FormatOf(kKoaType), EncodeAs(FormatOf(kKoaType), plain), {}));
  }

  PictureImage painted = picture;
  Sign(painted);
  const app::Bytes saved = Encode(painted);
  EXPECT_EQ(Encode(Decode(FormatOf(kOwnType), saved, {}, Reading::kExact)), saved);
  EXPECT_EQ(Encode(DecodeContent(saved)), saved);
}

app::Bytes Packed(const app::Bytes& plain) {
  app::Bytes packed(plain.begin(), plain.begin() + 2);
  for (std::size_t at = 2; at < plain.size();) {
    std::size_t count = 1;
    while (at + count < plain.size() && count < 255 && plain[at + count] == plain[at]) ++count;
    if (count > 3 || plain[at] == 0xFE) {
      packed.insert(packed.end(), {0xFE, plain[at], static_cast<std::uint8_t>(count)});
    } else {
      packed.insert(packed.end(), count, plain[at]);
    }
    at += count;
  }
  return packed;
}

TEST(PictureKinds, PackedKoalaUnpacksAndDamageIsTold) {
  PictureImage picture = support::BlotchyPicture(13);
  std::fill_n(picture.Bitmap.begin() + 100, 40, std::uint8_t{0xFE});
  const app::Bytes packed = Packed(EncodeAs(FormatOf(kKoaType), picture));
  ASSERT_LT(packed.size(), 9000U);
  ExpectSamePicture(DecodeContent(packed), picture);
  for (std::size_t size = 0; size < packed.size(); ++size) {
    EXPECT_THROW(UnpackKoala({packed.data(), size}), PackedError) << size;
  }
  for (const app::Bytes& end : {app::Bytes{0}, {0xFE, 1, 1}, {0xFE}, {0xFE, 1}, {0xFE, 1, 0}}) {
    app::Bytes damaged = packed;
    damaged.insert(damaged.end(), end.begin(), end.end());
    EXPECT_THROW(DecodeContent(damaged), UnknownPicture);
  }
}

// As it is read above: so the parts lie where they belong, the border too, and what is between them is 0.
TEST(PictureKinds, ExportsAreReadBackBitForBit) {
  const PictureImage picture = RandomPicture(21);
  for (const std::size_t kind : {1U, 5U, 6U, 8U}) {
    const Layout& layout = kLayouts[kind];
    SCOPED_TRACE(layout.name);
    const app::Bytes file = EncodeAs(FormatOf(layout.type), picture);
    ASSERT_EQ(file.size(), layout.size);
    EXPECT_EQ(file[0] | file[1] << 8, layout.load_address);
    EXPECT_EQ(ContentOf(file).type, layout.type);
    ExpectSamePicture(DecodeContent(file), picture);
    EXPECT_EQ(EncodeAs(FormatOf(layout.type), DecodeContent(file)), file);
  }
  EXPECT_EQ(EncodeAs(FormatOf(kArtStudioType), picture)[9002], picture.BackgroundColour.Byte());
}

}  // namespace
}  // namespace kelvo::files
