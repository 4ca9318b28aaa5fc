#include "files/picture_content.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "files/packed_koala.h"

namespace kelvo::files {
namespace {

struct Kind {
  std::size_t size;
  std::optional<std::uint16_t> load_address;  // none: any
  FormatType type;
};

// Koala pictures come with bytes behind them, and moved to other addresses.
constexpr Kind kKinds[] = {
    {10003, std::nullopt, kKoaType},      {10004, std::nullopt, kKoaType}, {10006, std::nullopt, kKoaType},
    {10018, 0x2000, kArtStudioType},      {10050, 0x1800, kPicasso64Type}, {10051, 0x5800, kDrazPaintType},
    {10050, std::nullopt, kVidcom64Type},
};

constexpr std::size_t kKoalaWithoutAddress = 10001;

std::optional<FormatType> TypeOf(std::span<const std::uint8_t> bytes) {
  if (FormatOf(kOwnType).Takes(bytes.size()) && IsSigned(bytes)) return kOwnType;
  if (bytes.size() < 2) return std::nullopt;
  const auto load_address = static_cast<std::uint16_t>(bytes[0] + bytes[1] * 256U);
  const auto* kind = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const Kind& row) {
    return row.size == bytes.size() && row.load_address.value_or(load_address) == load_address;
  });
  return kind == std::end(kKinds) ? std::nullopt : std::optional(kind->type);
}

}  // namespace

const std::size_t kMostPictureBytes = kMostPackedBytes;

Content ContentOf(std::span<const std::uint8_t> bytes) {
  app::Bytes plain(bytes.begin(), bytes.end());
  if (bytes.size() == kKoalaWithoutAddress) {
    const std::uint16_t address = FormatOf(kKoaType).load_address;
    plain.insert(plain.begin(), {static_cast<std::uint8_t>(address), static_cast<std::uint8_t>(address >> 8)});
  }
  if (const auto type = TypeOf(plain)) {
    plain.resize(FormatOf(*type).file_size);
    return {*type, plain};
  }
  try {
    return {kKoaType, UnpackKoala(bytes)};
  } catch (const PackedError& error) {
    throw UnknownPicture("No picture format has this size and load address, and it is no packed Koala picture: " +
                         std::string(error.what()) + ".");
  }
}

model::PictureImage DecodeAny(FormatType type, std::span<const std::uint8_t> bytes, model::C64Colour background_before,
                              Reading reading) {
  if (FormatOf(type).Takes(bytes.size())) return Decode(FormatOf(type), bytes, background_before, reading);
  try {
    const Content content = ContentOf(bytes);
    return Decode(FormatOf(content.type), content.bytes, background_before, Reading::kExact);
  } catch (const UnknownPicture&) {
    if (type == kByContentType) throw;
    throw FormatError(FormatOf(type), bytes.size());
  }
}

}  // namespace kelvo::files
