// Pictures as files of the three formats that the editor reads.
#pragma once

#include <filesystem>
#include <string>

#include "model/picture_image.h"

namespace kelvo::samples {

// Writes `name`.kvp, .vid and .koa into `folder`. Throws app::FileError.
void WritePicture(const std::filesystem::path& folder, const std::string& name, model::PictureImage picture);

}  // namespace kelvo::samples
