// Picture files of every type: what is read is a picture, what is written is read again, other sizes are refused; and
// files of any kind by their bytes, packed ones too.
#include "files/packed_koala.h"
#include "files/picture_content.h"
#include "input.h"
#include "model/pixel_colour.h"

namespace kelvo::fuzz {
namespace {

using model::PictureImage;

constexpr std::uint8_t kUnread = 255;  // what the last bitmap byte is after reading

// The bytes again and again up to a size that the type takes, so that files of the right size are no rare luck.
app::Bytes Stretched(const app::Bytes& bytes, std::size_t size) {
  app::Bytes stretched(size);
  for (std::size_t i = 0; i < size && !bytes.empty(); ++i) stretched[i] = bytes[i % bytes.size()];
  return stretched;
}

// The used range alone: 1..1000 and 1..8000.
template <std::size_t size>
bool SameUsed(const std::array<std::uint8_t, size>& one, const std::array<std::uint8_t, size>& other, int count) {
  return std::equal(one.begin() + 1, one.begin() + 1 + count, other.begin() + 1);
}

void CheckWrittenAndRead(PictureImage picture) {
  files::Sign(picture);
  const app::Bytes written = files::Encode(picture);
  const files::PictureFormat& own = files::FormatOf(files::kOwnType);
  Require(written.size() == own.file_size, "an own file has its one size");
  const PictureImage read = files::Decode(own, written, {});
  PictureImage expected = picture;
  expected.Bitmap[PictureImage::kBitmapBytes] = kUnread;
  Require(SameUsed(read.Bitmap, expected.Bitmap, PictureImage::kBitmapBytes),
          "the bitmap comes back but its last byte");
  Require(SameUsed(read.ScreenMemory, expected.ScreenMemory, 1023), "screen memory and the signature come back");
  Require(SameUsed(read.ColourMemory, expected.ColourMemory, 1023), "colour memory comes back");
  Require(read.BackgroundColour == expected.BackgroundColour, "the background comes back");
  Require(read.LoadAddressLow == expected.LoadAddressLow && read.LoadAddressHigh == expected.LoadAddressHigh,
          "the load address comes back");
}

void CheckTypes(const app::Bytes& bytes, const std::string& name) {
  const files::FormatType type = files::TypeOfFile(name, bytes.size());
  Require(type >= files::kGeneralType && type <= files::kByContentType, "every name has a type");
}

// Whatever the bytes are: a picture, which every export carries whole, or an error.
void CheckContent(const app::Bytes& bytes) {
  try {
    const PictureImage picture = files::DecodeAny(files::kByContentType, bytes, {}, files::Reading::kDocumented);
    for (const files::FormatType type :
         {files::kVidcom64Type, files::kKoaType, files::kArtStudioType, files::kPicasso64Type, files::kDrazPaintType}) {
      const files::PictureFormat& format = files::FormatOf(type);
      const app::Bytes written = files::EncodeAs(format, picture);
      const PictureImage read = files::Decode(format, written, {}, files::Reading::kExact);
      Require(SameUsed(read.Bitmap, picture.Bitmap, PictureImage::kBitmapBytes), "an export carries the bitmap");
      Require(SameUsed(read.ScreenMemory, picture.ScreenMemory, PictureImage::kCells), "an export carries the screen");
      Require(SameUsed(read.ColourMemory, picture.ColourMemory, PictureImage::kCells), "an export carries the colours");
      Require(read.BackgroundColour == picture.BackgroundColour, "an export carries the background");
    }
  } catch (const files::UnknownPicture&) {
    Require(bytes.size() != files::FormatOf(files::kKoaType).file_size, "a file of Koala's size is one");
  }
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  const files::PictureFormat& format = files::FormatOf(input.Below(10));  // one more than there are
  const int length = input.Below(4);
  const auto before = model::C64Colour::FromByte(input.Byte());
  app::Bytes bytes = input.Rest();
  fuzz::CheckTypes(bytes, std::string(bytes.begin(), bytes.end()));
  fuzz::CheckContent(bytes);
  if (length > 0 && format.file_size <= files::kMostPictureBytes) {
    bytes = fuzz::Stretched(bytes, length == 1 ? format.other_size : format.file_size);
  }
  try {
    const model::PictureImage picture = files::Decode(format, bytes, before);
    fuzz::Require(format.Takes(bytes.size()), "only sizes of the type are taken");
    fuzz::Require(picture.Bitmap[model::PictureImage::kBitmapBytes] == fuzz::kUnread, "the last byte is not read");
    model::GetPixelData(picture, 1, 1);
    model::GetPixelData(picture, 160, 200);
    fuzz::CheckWrittenAndRead(picture);
  } catch (const files::FormatError&) {
    fuzz::Require(!format.Takes(bytes.size()), "sizes of the type are taken");
  }
  return 0;
}
