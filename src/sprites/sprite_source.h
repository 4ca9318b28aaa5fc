// Pictures that sprites are taken from.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <stdexcept>
#include <string>

#include "model/picture_image.h"

namespace kelvo::sprites {

// A file of another size than a picture or program has.
class SourceSizeError : public std::runtime_error {
 public:
  explicit SourceSizeError(std::uintmax_t size);

  // The sizes that are right and the one that the file has, in English.
  const std::string& Sizes() const { return sizes_; }

 private:
  std::string sizes_;
};

// The picture in a picture or program file of 10050 or 10241 bytes in the own layout; bytes behind it are passed over.
// Throws SourceSizeError for other sizes.
model::PictureImage DecodeSpriteSource(std::span<const std::uint8_t> bytes);

// The same from a file. Throws app::FileError too, for a file that cannot be read.
model::PictureImage LoadSpriteSource(const std::filesystem::path& file);

}  // namespace kelvo::sprites
