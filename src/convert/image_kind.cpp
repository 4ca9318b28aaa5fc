#include "convert/image_kind.h"

#include <algorithm>
#include <set>

namespace kelvo::convert {
namespace {

constexpr std::size_t kFewColours = 16;
constexpr double kFlat = 0.5;  // of all pixels: a drawing has more that are like their neighbour
constexpr int kMostLines = 256;

}  // namespace

ImageKind KindOf(const RgbImage& image) {
  std::set<std::uint32_t> colours;
  double same = 0, all = 0;
  const int step = std::max(image.height / kMostLines, 1);
  for (int y = 0; y < image.height; y += step) {
    for (int x = 1; x < image.width; ++x) {
      const std::uint32_t pixel = image.At(x, y);
      if (colours.size() <= kFewColours) colours.insert(pixel);
      if (pixel == image.At(x - 1, y)) ++same;
      ++all;
    }
  }
  if (colours.size() <= kFewColours) return ImageKind::kFewColours;
  return same > kFlat * all ? ImageKind::kDrawing : ImageKind::kPhoto;
}

}  // namespace kelvo::convert
