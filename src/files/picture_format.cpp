#include "files/picture_format.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/path_text.h"

namespace kelvo::files {
namespace {

using model::C64Colour;
using model::PictureImage;

// By type, the general row first.
constexpr std::array<PictureFormat, 5> kFormats{{
    {"", "", "", 10050, 10050, 0, 1024, 2048, 2049},
    {"Kelvo-files", "*.kvp *.lmp", "Felaktig filstorlek.", 10050, 10057, 0, 1024, 2048, 2049},
    {"Vidcom64", "*.vid", "Felaktig filstorlek. Giltig VIDCOM64-fil ska vara 10050 bytes", 10050, 10050, 0, 1024, 2048,
     std::nullopt},
    {"Koala Paint", "*.koa", "Felaktig filstorlek. Giltig KOALA PAINT-fil ska vara 10003 bytes", 10003, 10003, 9000,
     8000, 0, 10000},
    {"Koala Paint", "*.kla", "Felaktig filstorlek. Giltig KOALA PAINT-fil ska vara 10003 bytes", 10003, 10003, 9000,
     8000, 0, 10000},
}};

constexpr std::array<std::pair<std::string_view, FormatType>, 5> kTypeByExtension{{
    {".kvp", kOwnType},
    {".lmp", kOwnType},
    {".vid", kVidcom64Type},
    {".koa", kKoaType},
    {".kla", kKlaType},
}};

constexpr std::size_t kColourBlock = 1024, kScreenBlock = 1024, kBitmapBlock = 8000;

constexpr std::array<std::uint8_t, 7> kSignature{11, 5, 12, 22, 15, 5, 4};
constexpr std::size_t kSignatureAt = 1017, kBackgroundAt = 1024;

// Fills `memory` from index 0 on with the block of `length` bytes at `offset`. The block starts one byte early, at the
// last byte before it, on purpose: so its first byte reaches index 1, where all arrays are used from, and the last byte
// of the bitmap stays unread.
template <std::size_t size>
void ReadBlock(std::span<const std::uint8_t> file, std::size_t offset, std::size_t length,
               std::array<std::uint8_t, size>& memory) {
  const auto from = file.subspan(std::min(offset + 1, file.size()));
  std::copy_n(from.begin(), std::min(length, from.size()), memory.begin());
}

template <std::size_t size>
void Append(app::Bytes& bytes, const std::array<std::uint8_t, size>& memory, std::size_t count) {
  bytes.insert(bytes.end(), memory.begin() + 1, memory.begin() + 1 + static_cast<std::ptrdiff_t>(count));
}

void ReadPictureBlocks(const PictureFormat& format, std::span<const std::uint8_t> file, PictureImage& picture) {
  picture.LoadAddressLow = file[0];
  picture.LoadAddressHigh = file[1];
  ReadBlock(file, format.colour_at, kColourBlock, picture.ColourMemory);
  ReadBlock(file, format.screen_at, kScreenBlock, picture.ScreenMemory);
  ReadBlock(file, format.bitmap_at, kBitmapBlock, picture.Bitmap);
  if (!format.background_at) return;
  const auto background = C64Colour::FromNumber(file[*format.background_at]);
  if (background) picture.BackgroundColour = *background;
}

std::string SizesText(const PictureFormat& format, std::uintmax_t size) {
  std::string right = std::to_string(format.file_size);
  if (format.other_size != format.file_size) right += " or " + std::to_string(format.other_size);
  return "A file of this type has " + right + " bytes, this one has " + std::to_string(size) + ".";
}

}  // namespace

FormatError::FormatError(const PictureFormat& format, std::uintmax_t size)
    : std::runtime_error(format.size_message.empty() ? "a picture file has " + std::to_string(format.file_size) +
                                                           " bytes, this one has " + std::to_string(size)
                                                     : std::string(format.size_message)),
      sizes_(SizesText(format, size)) {}

const PictureFormat& FormatOf(FormatType type) {
  return type > 0 && type < static_cast<int>(kFormats.size()) ? kFormats[static_cast<std::size_t>(type)] : kFormats[0];
}

std::span<const PictureFormat> OfferedFormats() {
  return std::span(kFormats).subspan(1);
}

FormatType TypeOfFile(std::string_view path, std::uintmax_t size) {
  const std::string extension = app::LowerExtension(path);
  for (const auto& [known, type] : kTypeByExtension) {
    if (extension == known) return type;
  }
  return size == FormatOf(kKoaType).file_size ? kKoaType : kGeneralType;
}

FormatType FittingType(FormatType chosen, std::string_view path, std::uintmax_t size) {
  for (const FormatType type : {chosen, TypeOfFile(path, size), kOwnType, kKoaType}) {
    if (FormatOf(type).Takes(size)) return type;
  }
  return chosen;
}

PictureImage Decode(const PictureFormat& format, std::span<const std::uint8_t> bytes, C64Colour background_before) {
  if (!format.Takes(bytes.size())) throw FormatError(format, bytes.size());
  PictureImage picture{.BackgroundColour = background_before};
  ClearForLoading(picture);
  ReadPictureBlocks(format, bytes, picture);
  return picture;
}

void Sign(PictureImage& picture) {
  std::copy(kSignature.begin(), kSignature.end(), picture.ScreenMemory.begin() + kSignatureAt);
  picture.ScreenMemory[kBackgroundAt] = picture.BackgroundColour.Byte();
}

app::Bytes Encode(const PictureImage& picture) {
  app::Bytes bytes{picture.LoadAddressLow, picture.LoadAddressHigh};
  bytes.reserve(FormatOf(kOwnType).file_size);
  Append(bytes, picture.ColourMemory, kColourBlock);
  Append(bytes, picture.ScreenMemory, kScreenBlock);
  Append(bytes, picture.Bitmap, kBitmapBlock);
  return bytes;
}

}  // namespace kelvo::files
