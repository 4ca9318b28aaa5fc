// Pictures that sprites are taken from.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

#include "model/picture_image.h"

namespace kelvo::sprites {

// The picture in a picture or program file of 10050 or 10241 bytes in the own layout; bytes behind it are passed over.
// Throws std::runtime_error for other sizes.
model::PictureImage DecodeSpriteSource(std::span<const std::uint8_t> bytes);

// The same from a file. Throws app::FileError too, for a file that cannot be read.
model::PictureImage LoadSpriteSource(const std::filesystem::path& file);

}  // namespace kelvo::sprites
