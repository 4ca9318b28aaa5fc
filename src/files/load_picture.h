// Reading a picture from a file.
#pragma once

#include <filesystem>

#include "app/whole_file.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::files {

// The bytes of `file`, which `type` takes by its size. Throws FormatError for one of another size, app::FileError for
// one that cannot be read.
app::Bytes ReadPictureFile(const std::filesystem::path& file, FormatType type);

// The picture in that file; `background` stays where the file carries none.
model::PictureImage LoadPicture(const std::filesystem::path& file, FormatType type, model::C64Colour background);

}  // namespace kelvo::files
