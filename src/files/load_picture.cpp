#include "files/load_picture.h"

namespace kelvo::files {

app::Bytes ReadPictureFile(const std::filesystem::path& file, FormatType type) {
  const PictureFormat& format = FormatOf(type);
  const std::uintmax_t size = app::FileSize(file);
  if (!format.Takes(size)) throw FormatError(format, size);
  return app::ReadWholeFile(file, size);
}

model::PictureImage LoadPicture(const std::filesystem::path& file, FormatType type, model::C64Colour background) {
  return Decode(FormatOf(type), ReadPictureFile(file, type), background);
}

}  // namespace kelvo::files
