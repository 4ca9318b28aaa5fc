#include "files/picture_format.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "app/path_text.h"
#include "model/pixel_colour.h"

namespace kelvo::files {
namespace {

using model::C64Colour;
using model::PictureImage;

constexpr std::size_t kNoSize = std::numeric_limits<std::size_t>::max();

// By type, the general row first.
constexpr std::array<PictureFormat, 9> kFormats{{
    {"", "", "", 10050, 10050, 0, 1024, 2048, 2049},
    {"Kelvo-files", "*.kvp *.lmp", "Felaktig filstorlek.", 10050, 10057, 0, 1024, 2048, 2049},
    {"Vidcom64", "*.vid", "Felaktig filstorlek. Giltig VIDCOM64-fil ska vara 10050 bytes", 10050, 10050, 0, 1024, 2048,
     std::nullopt, 2026},
    {"Koala Paint", "*.koa", "Felaktig filstorlek. Giltig KOALA PAINT-fil ska vara 10003 bytes", 10003, 10003, 9000,
     8000, 0, 10000, 10002, std::nullopt, 0x6000},
    {"Koala Paint", "*.kla", "Felaktig filstorlek. Giltig KOALA PAINT-fil ska vara 10003 bytes", 10003, 10003, 9000,
     8000, 0, 10000, 10002, std::nullopt, 0x6000},
    {"Other C64 pictures", "*.ocp *.art *.p64 *.drz *.gg *.prg", "", kNoSize, kNoSize, 0, 0, 0, std::nullopt},
    {"Advanced Art Studio", "*.ocp *.art", "", 10018, 10018, 9016, 8000, 0, 9003, 9003, 9002, 0x2000},
    {"Picasso64", "*.p64", "", 10050, 10050, 0, 1024, 2048, 2049, 2049, std::nullopt, 0x1800},
    {"DrazPaint", "*.drz", "", 10051, 10051, 0, 1024, 2048, 10050, 10050},
}};

constexpr std::array<std::pair<std::string_view, FormatType>, 10> kTypeByExtension{{
    {".kvp", kOwnType},
    {".lmp", kOwnType},
    {".vid", kVidcom64Type},
    {".koa", kKoaType},
    {".kla", kKlaType},
    {".ocp", kByContentType},
    {".art", kByContentType},
    {".p64", kByContentType},
    {".drz", kByContentType},
    {".gg", kByContentType},
}};

constexpr std::size_t kLoadAddress = 2;  // bytes
constexpr std::size_t kColourBlock = 1024, kScreenBlock = 1024, kBitmapBlock = 8000;

constexpr std::array<std::uint8_t, 7> kSignature{11, 5, 12, 22, 15, 5, 4};
constexpr std::size_t kSignatureAt = 1017, kBackgroundAt = 1024;

// Fills `memory` from index 0 on with the block of `length` bytes at `offset`. The block starts one byte early, at the
// last byte before it, on purpose: so its first byte reaches index 1, where all arrays are used from, and its last one
// stays unread but for the exact reading.
template <std::size_t size>
void ReadBlock(std::span<const std::uint8_t> file, std::size_t offset, std::size_t length, Reading reading,
               std::array<std::uint8_t, size>& memory) {
  const auto from = file.subspan(std::min(offset + 1, file.size()));
  if (reading == Reading::kExact) ++length;
  std::copy_n(from.begin(), std::min(length, from.size()), memory.begin());
}

template <std::size_t size>
void WriteBlock(const std::array<std::uint8_t, size>& memory, std::size_t length, std::size_t offset,
                app::Bytes& file) {
  std::copy_n(memory.begin() + 1, length, file.begin() + static_cast<std::ptrdiff_t>(offset + kLoadAddress));
}

template <std::size_t size>
void Append(app::Bytes& bytes, const std::array<std::uint8_t, size>& memory, std::size_t count) {
  bytes.insert(bytes.end(), memory.begin() + 1, memory.begin() + 1 + static_cast<std::ptrdiff_t>(count));
}

// As documented, a byte that is no colour leaves the background alone; at its true place junk may stand above it.
C64Colour ReadBackground(const PictureFormat& format, std::span<const std::uint8_t> file, Reading reading,
                         C64Colour before) {
  if (reading == Reading::kExact && format.true_background_at) {
    return C64Colour::FromByte(file[*format.true_background_at]);
  }
  return format.background_at ? C64Colour::FromNumber(file[*format.background_at]).value_or(before) : before;
}

// Other bytes need not be other colours.
bool ShowTheSame(const PictureImage& one, const PictureImage& other) {
  for (int y = 1; y <= PictureImage::kHeight; ++y) {
    for (int x = 1; x <= PictureImage::kWidth; ++x) {
      if (model::GetPixelData(one, x, y).colour != model::GetPixelData(other, x, y).colour) return false;
    }
  }
  return true;
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
  return std::span(kFormats).subspan(kOwnType, kByContentType);
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
    if (type == kByContentType || FormatOf(type).Takes(size)) return type;
  }
  return chosen;
}

PictureImage Decode(const PictureFormat& format, std::span<const std::uint8_t> bytes, C64Colour background_before,
                    Reading reading) {
  if (!format.Takes(bytes.size())) throw FormatError(format, bytes.size());
  PictureImage picture;
  ClearForLoading(picture);
  picture.LoadAddressLow = bytes[0];
  picture.LoadAddressHigh = bytes[1];
  ReadBlock(bytes, format.colour_at, kColourBlock, reading, picture.ColourMemory);
  ReadBlock(bytes, format.screen_at, kScreenBlock, reading, picture.ScreenMemory);
  ReadBlock(bytes, format.bitmap_at, kBitmapBlock, reading, picture.Bitmap);
  picture.BackgroundColour = ReadBackground(format, bytes, reading, background_before);
  return picture;
}

bool ReadsDifferently(const PictureFormat& format, std::span<const std::uint8_t> bytes, C64Colour background_before) {
  const PictureImage one = Decode(format, bytes, background_before, Reading::kDocumented);
  const PictureImage other = Decode(format, bytes, background_before, Reading::kExact);
  return !ShowTheSame(one, other);
}

void Sign(PictureImage& picture) {
  std::copy(kSignature.begin(), kSignature.end(), picture.ScreenMemory.begin() + kSignatureAt);
  picture.ScreenMemory[kBackgroundAt] = picture.BackgroundColour.Byte();
}

bool IsSigned(std::span<const std::uint8_t> bytes) {
  const std::size_t at = kLoadAddress + FormatOf(kOwnType).screen_at + kSignatureAt - 1;
  return std::equal(kSignature.begin(), kSignature.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

app::Bytes Encode(const PictureImage& picture) {
  app::Bytes bytes{picture.LoadAddressLow, picture.LoadAddressHigh};
  bytes.reserve(FormatOf(kOwnType).file_size);
  Append(bytes, picture.ColourMemory, kColourBlock);
  Append(bytes, picture.ScreenMemory, kScreenBlock);
  Append(bytes, picture.Bitmap, kBitmapBlock);
  return bytes;
}

app::Bytes EncodeAs(const PictureFormat& format, const PictureImage& picture) {
  app::Bytes bytes(format.file_size);
  bytes[0] = static_cast<std::uint8_t>(format.load_address);
  bytes[1] = static_cast<std::uint8_t>(format.load_address >> 8);
  WriteBlock(picture.ColourMemory, PictureImage::kCells, format.colour_at, bytes);
  WriteBlock(picture.ScreenMemory, PictureImage::kCells, format.screen_at, bytes);
  WriteBlock(picture.Bitmap, kBitmapBlock, format.bitmap_at, bytes);
  for (const auto& place : {format.true_background_at, format.border_at}) {
    if (place) bytes[*place] = picture.BackgroundColour.Byte();
  }
  return bytes;
}

}  // namespace kelvo::files
