#include "files/load_picture.h"

#include "app/path_text.h"
#include "app/whole_file.h"

namespace kelvo::files {

model::PictureImage LoadPicture(std::string_view path, FormatType type, model::C64Colour background) {
  const PictureFormat& format = FormatOf(type);
  const std::filesystem::path file = app::PathFromText(path);
  const std::uintmax_t size = app::FileSize(file);
  if (!format.Takes(size)) throw FormatError(format, size);
  return Decode(format, app::ReadWholeFile(file, size), background);
}

}  // namespace kelvo::files
