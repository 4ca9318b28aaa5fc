#include "cli/commands/picture_formats.h"

#include <algorithm>
#include <array>

#include "app/path_text.h"
#include "files/packed_koala.h"
#include "images/picture_png.h"

namespace kelvo::cli {
namespace {

struct FormatName {
  std::string_view name, endings;
  files::FormatType type;
};

constexpr std::string_view kImage = "png", kPacked = "gg";

constexpr std::array<FormatName, 8> kNames{{
    {"kvp", ".kvp .lmp", files::kOwnType},
    {"koa", ".koa", files::kKoaType},
    {"kla", ".kla", files::kKlaType},
    {"vid", ".vid", files::kVidcom64Type},
    {"ocp", ".ocp .art", files::kArtStudioType},
    {"p64", ".p64", files::kPicasso64Type},
    {"drz", ".drz", files::kDrazPaintType},
    {kPacked, ".gg", files::kByContentType},
}};

// With the bytes that a Koala picture may lack, or have behind it.
constexpr std::array<std::size_t, 4> kKoalaSizes{10001, 10003, 10004, 10006};

app::Bytes Saved(model::PictureImage picture) {
  files::Sign(picture);
  return files::Encode(picture);
}

}  // namespace

std::optional<files::FormatType> TypeNamed(std::string_view format) {
  const auto* found = std::ranges::find(kNames, format, &FormatName::name);
  return found == kNames.end() ? std::nullopt : std::optional(found->type);
}

std::string_view FormatNameOf(files::FormatType type, std::size_t size) {
  if (type == files::kKoaType && std::ranges::count(kKoalaSizes, size) == 0) return kPacked;
  const auto* found = std::ranges::find(kNames, type, &FormatName::type);
  return found == kNames.end() ? kNames.front().name : found->name;
}

std::string_view FormatByEnding(std::string_view file) {
  const std::string ending = app::LowerExtension(file);
  if (ending.empty()) return {};
  if (ending.substr(1) == kImage) return kImage;
  const auto* found = std::ranges::find_if(kNames, [&](const FormatName& row) {
    const std::size_t at = row.endings.find(ending);
    return at != std::string_view::npos &&
           (at + ending.size() == row.endings.size() || row.endings[at + ending.size()] == ' ');
  });
  return found == kNames.end() ? std::string_view() : found->name;
}

app::Bytes EncodedAs(std::string_view format, const model::PictureImage& picture, const files::Palette& palette) {
  if (format == kImage) return images::PngOf(images::ImageOf(picture, palette, images::ImageSize::kScreen, 1));
  const files::FormatType type = TypeNamed(format).value_or(files::kOwnType);
  if (type == files::kOwnType) return Saved(picture);
  if (type != files::kByContentType) return files::EncodeAs(files::FormatOf(type), picture);
  return files::PackKoala(files::EncodeAs(files::FormatOf(files::kKoaType), picture));
}

}  // namespace kelvo::cli
