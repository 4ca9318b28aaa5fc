// Reading a picture from a file.
#pragma once

#include <filesystem>

#include "app/settings_store.h"
#include "app/whole_file.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::files {

// Read byte 8000 and a background's true place too: 0 or 1.
inline constexpr app::Setting kReadFilesExactly{"Preferences", "ReadFilesExactly", "0"};
Reading ReadingBy(const app::SettingsStore& settings);

// The bytes of `file`, which `type` takes by its size, or which are few enough for a picture of any type. Throws
// FormatError for others, app::FileError for one that cannot be read.
app::Bytes ReadPictureFile(const std::filesystem::path& file, FormatType type);

// The picture in that file; `background` stays where the file carries none. Throws what DecodeAny() does, too.
model::PictureImage LoadPicture(const std::filesystem::path& file, FormatType type, model::C64Colour background,
                                Reading reading);

}  // namespace kelvo::files
