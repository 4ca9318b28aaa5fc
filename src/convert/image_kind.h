// Whether an image was drawn or photographed.
#pragma once

#include "convert/rgb_image.h"

namespace kelvo::convert {

enum class ImageKind {
  kFewColours,  // no more colours than a C64 has: logos, screens, pixel art
  kDrawing,     // flat areas
  kPhoto,
};

// By its colours and by how many neighbouring pixels are the same. A large image is looked at in part.
ImageKind KindOf(const RgbImage& image);

}  // namespace kelvo::convert
