// Reading a picture from a file.
#pragma once

#include <string_view>

#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::files {

// The picture in the file at `path`, read as `type`; `background` stays where the file carries none. Throws FormatError
// for a file of another size, app::FileError for one that cannot be read.
model::PictureImage LoadPicture(std::string_view path, FormatType type, model::C64Colour background);

}  // namespace kelvo::files
