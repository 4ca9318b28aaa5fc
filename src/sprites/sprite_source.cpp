#include "sprites/sprite_source.h"

#include <stdexcept>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "files/picture_format.h"

namespace kelvo::sprites {
namespace {

constexpr std::uintmax_t kPictureSize = 10050, kProgramSize = 10241;

}  // namespace

model::PictureImage LoadSpriteSource(std::string_view path) {
  const std::filesystem::path file = app::PathFromText(path);
  const std::uintmax_t size = app::FileSize(file);
  if (size != kPictureSize && size != kProgramSize) {
    throw std::runtime_error("Felaktig filstorlek. Bitmap/PRG-fil ska vara 10050 eller 10241 bytes");
  }
  app::Bytes bytes = app::ReadWholeFile(file, size);
  bytes.resize(kPictureSize);
  return files::Decode(files::FormatOf(files::kGeneralType), bytes, {});
}

}  // namespace kelvo::sprites
