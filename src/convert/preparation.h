// What is made of an image before its colours are chosen: the part that is wanted, its size, its light.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "app/long_work.h"
#include "convert/colour_map.h"
#include "convert/colour_space.h"
#include "convert/rgb_image.h"

namespace kelvo::convert {

enum class Fit {
  kCover,    // fills the picture; what stands out at two sides is cut off, as much at either
  kContain,  // all of it is seen, with the backdrop at two sides
  kStretch,  // all of it is seen, as wide and as high as the picture
};

// In pixels of the image; may reach beyond it, where the backdrop is.
struct Area {
  double left = 0, top = 0, width = 0, height = 0;

  friend bool operator==(const Area&, const Area&) = default;
};

struct Preparation {
  static constexpr int kMost = 100;  // of the three of colour, either way

  Fit fit = Fit::kCover;
  std::optional<Area> crop{};                        // else the whole image
  int brightness = 0, contrast = 0, saturation = 0;  // -kMost..kMost; 0 leaves the image alone
  double gamma = 1;                                  // 0.2..5; above 1 is lighter
  std::uint32_t backdrop = 0xFF000000;               // 0xFFRRGGBB, behind transparent parts and beside the image

  friend bool operator==(const Preparation&, const Preparation&) = default;
};

// The part of an image of that size which fills the grid. A pixel of the picture counts as twice as wide as high.
Area AreaFor(int image_width, int image_height, const CellGrid& grid, const Preparation& preparation);

// Linear RGB for each pixel of the grid: the mean of what lies in it, mixed as light.
using LightMap = std::vector<Triple>;
LightMap SampleLight(const RgbImage& image, const Area& area, const CellGrid& grid, std::uint32_t backdrop);

// Brightness, contrast, saturation and gamma.
LightMap AdjustLight(LightMap light, const Preparation& preparation);

}  // namespace kelvo::convert
