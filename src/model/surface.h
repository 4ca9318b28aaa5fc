// A plain buffer of display pixels that the program draws into and windows show.
#pragma once

#include <cstdint>
#include <vector>

namespace kelvo::model {

struct Rect {
  int x = 0, y = 0, width = 0, height = 0;

  friend bool operator==(const Rect&, const Rect&) = default;
};

// Pixels are 0xFFRRGGBB, rows follow one another from the top without padding. Coordinates count from 0.
class Surface {
 public:
  Surface(int width, int height) : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height)) {}

  int Width() const { return width_; }
  int Height() const { return height_; }
  std::uint32_t* Row(int y) { return pixels_.data() + static_cast<std::ptrdiff_t>(y) * width_; }
  const std::uint32_t* Row(int y) const { return pixels_.data() + static_cast<std::ptrdiff_t>(y) * width_; }
  std::uint32_t At(int x, int y) const { return Row(y)[x]; }

  // Fills the part of `area` that lies on the surface.
  void Fill(const Rect& area, std::uint32_t colour);

 private:
  int width_, height_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace kelvo::model
