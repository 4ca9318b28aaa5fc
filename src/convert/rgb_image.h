// An image as it came from a file or another program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelvo::convert {

// Row by row from the top, each pixel 0xAARRGGBB, sRGB, not multiplied by its alpha. Has width * height pixels.
struct RgbImage {
  int width = 0, height = 0;
  std::vector<std::uint32_t> pixels;

  bool IsEmpty() const { return width <= 0 || height <= 0; }
  std::uint32_t At(int x, int y) const {  // both from 0
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
  }
};

}  // namespace kelvo::convert
