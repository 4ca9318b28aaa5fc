// Image files of all kinds that Qt knows, and Qt's own images, as what a picture is converted from.
#pragma once

#include <QImage>
#include <filesystem>
#include <stdexcept>
#include <stop_token>

#include "convert/rgb_image.h"

namespace kelvo::images {

// Bytes that are no image, not a whole one, or one that is too large; the message says which.
class ImageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The most pixels of an image: more than any camera's, less than fills a memory.
inline constexpr qint64 kMostPixels = qint64{100} << 20;

// In any depth and colour model, turned as a camera noted it; of an animation the first frame; a drawing made of lines
// as large as fits a C64's screen several times. Throws ImageError, app::FileError for a file that cannot be read. Who
// no longer wants the image asks for a stop, and gets an error before long.
convert::RgbImage ReadImage(const std::filesystem::path& file, const std::stop_token& stop = {});
convert::RgbImage ReadImage(const QByteArray& bytes, const std::stop_token& stop = {});

// Throws ImageError for an empty or too large one.
convert::RgbImage RgbOf(QImage image);

}  // namespace kelvo::images
