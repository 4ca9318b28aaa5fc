#include "files/load_picture.h"

#include "app/path_text.h"

namespace kelvo::files {

app::Bytes ReadPictureFile(std::string_view path, FormatType type) {
  const PictureFormat& format = FormatOf(type);
  const std::filesystem::path file = app::PathFromText(path);
  const std::uintmax_t size = app::FileSize(file);
  if (!format.Takes(size)) throw FormatError(format, size);
  return app::ReadWholeFile(file, size);
}

model::PictureImage LoadPicture(std::string_view path, FormatType type, model::C64Colour background) {
  return Decode(FormatOf(type), ReadPictureFile(path, type), background);
}

}  // namespace kelvo::files
