// Sprites in pixels: what is captured from a picture.
#pragma once

#include <array>
#include <vector>

#include "model/c64_colour.h"
#include "model/picture_image.h"
#include "model/pixel_place.h"

namespace kelvo::sprites {

// A multicolour sprite is 12 x 21 pixels (24 x 21 on display), three bytes a row.
inline constexpr int kSpriteWidth = 12, kSpriteHeight = 21, kSpritePixels = kSpriteWidth * kSpriteHeight;

// Colours row by row from the top left; index 0 is the first pixel.
using Sprite = std::array<model::C64Colour, kSpritePixels>;

enum class CaptureSize { k1x1, k2x2 };
enum class Alignment { kFree, kGrid };

// The part of a picture that is captured. Always inside the picture.
struct CaptureArea {
  int left = 1, top = 1;  // 1..160, 1..200
  CaptureSize size = CaptureSize::k1x1;

  int Width() const { return size == CaptureSize::k2x2 ? 2 * kSpriteWidth : kSpriteWidth; }
  int Height() const { return size == CaptureSize::k2x2 ? 2 * kSpriteHeight : kSpriteHeight; }
  friend bool operator==(const CaptureArea&, const CaptureArea&) = default;
};

// The area with `pointer` in its middle, or, aligned, the one of the sprite grid that holds it. The grid begins at the
// top left; what does not fit into the picture at its far edges moves back inside by whole grid steps.
CaptureArea CaptureAt(model::PixelPoint pointer, CaptureSize size, Alignment alignment);

// One sprite, or four: left top, right top, left bottom, right bottom.
std::vector<Sprite> Capture(const model::PictureImage& picture, const CaptureArea& area);

// Sets the area's pixels to the background's bit pair.
void Erase(model::PictureImage& picture, const CaptureArea& area);

// The colours of the sprites other than `background`, most used first, at most three.
std::vector<model::C64Colour> MostUsedColours(const std::vector<Sprite>& sprites, model::C64Colour background);

}  // namespace kelvo::sprites
