#include "sprites/sprite_source.h"

#include "app/whole_file.h"
#include "files/picture_format.h"

namespace kelvo::sprites {
namespace {

constexpr std::uintmax_t kPictureSize = 10050, kProgramSize = 10241;

void CheckSize(std::uintmax_t size) {
  if (size == kPictureSize || size == kProgramSize) return;
  throw SourceSizeError(size);
}

}  // namespace

SourceSizeError::SourceSizeError(std::uintmax_t size)
    : std::runtime_error("Felaktig filstorlek. Bitmap/PRG-fil ska vara 10050 eller 10241 bytes"),
      sizes_("A bitmap or PRG file has 10050 or 10241 bytes, this one has " + std::to_string(size) + ".") {}

model::PictureImage DecodeSpriteSource(std::span<const std::uint8_t> bytes) {
  CheckSize(bytes.size());
  return files::Decode(files::FormatOf(files::kGeneralType), bytes.first(kPictureSize), {});
}

model::PictureImage LoadSpriteSource(const std::filesystem::path& file) {
  CheckSize(app::FileSize(file));
  return DecodeSpriteSource(app::ReadWholeFile(file, kProgramSize));
}

}  // namespace kelvo::sprites
