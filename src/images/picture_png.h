// The picture as a PNG file: indexed, in the sixteen colours of a palette, whose name it carries.
#pragma once

#include <QImage>
#include <cstdint>
#include <span>

#include "app/bytes.h"
#include "files/palette_file.h"
#include "model/picture_image.h"

namespace kelvo::images {

// What of the screen an image shows.
enum class ImageSize {
  kPixels,  // 160 x 200: a pixel is a pixel
  kScreen,  // 320 x 200: as wide as a C64 shows it
  kBorder,  // 384 x 272: with a border in the background's colour; the picture stands at 32, 35
};

inline constexpr int kLargestScale = 8;

// The key of the text that names the palette.
inline constexpr const char* kPaletteKey = "Palette";

// Pixels are colour numbers. `scale` is 1..kLargestScale.
QImage ImageOf(const model::PictureImage& picture, const files::Palette& palette, ImageSize size, int scale);

// The 320 x 200 pixels that a C64 shows, as colour numbers row by row, with the border around them: 384 x 272.
QImage ImageOfScreen(std::span<const std::uint8_t> pixels, model::C64Colour border, const files::Palette& palette);

// The same lines, some of them twice, so that square pixels show it as high as a PAL screen does.
QImage AsHighAsOnPal(const QImage& image);

// Packed as small as PNG can. Throws std::runtime_error where the image cannot be made.
app::Bytes PngOf(const QImage& image);

}  // namespace kelvo::images
