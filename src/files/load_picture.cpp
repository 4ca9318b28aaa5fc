#include "files/load_picture.h"

#include "files/picture_content.h"

namespace kelvo::files {

Reading ReadingBy(const app::SettingsStore& settings) {
  return app::IsOn(settings, kReadFilesExactly) ? Reading::kExact : Reading::kDocumented;
}

app::Bytes ReadPictureFile(const std::filesystem::path& file, FormatType type) {
  const std::uintmax_t size = app::FileSize(file);
  if (size > kMostPictureBytes) throw FormatError(FormatOf(type), size);
  return app::ReadWholeFile(file, size);
}

model::PictureImage LoadPicture(const std::filesystem::path& file, FormatType type, model::C64Colour background,
                                Reading reading) {
  return DecodeAny(type, ReadPictureFile(file, type), background, reading);
}

}  // namespace kelvo::files
