#include "convert/preparation.h"

#include <algorithm>
#include <cmath>

#include "convert/parallel.h"

namespace kelvo::convert {
namespace {

// How much of one pixel of the image lies in one of the picture, along one side.
struct Share {
  int from;      // of the image; -1: the backdrop
  double width;  // 0..1 of the picture's pixel
};

// By pixel of the picture. They sum up to 1 each.
std::vector<std::vector<Share>> SharesAlong(double begin, double length, int image_length, int count) {
  std::vector<std::vector<Share>> shares(static_cast<std::size_t>(count));
  const double step = length / count;
  for (int index = 0; index < count; ++index) {
    std::vector<Share>& mine = shares[static_cast<std::size_t>(index)];
    const double first = begin + step * index, last = first + step;
    const double inside_first = std::clamp(first, 0.0, static_cast<double>(image_length));
    const double inside_last = std::clamp(last, 0.0, static_cast<double>(image_length));
    for (int from = static_cast<int>(inside_first); from < inside_last; ++from) {
      const double width = std::min(from + 1.0, inside_last) - std::max<double>(from, inside_first);
      if (width > 0) mine.push_back({from, width / step});
    }
    const double outside = 1 - (inside_last - inside_first) / step;
    if (outside > 0) mine.push_back({-1, outside});
  }
  return shares;
}

// The pixel over the backdrop, as light.
Triple LightOver(std::uint32_t pixel, const Triple& backdrop) {
  constexpr std::uint32_t kOpaque = 255;
  const std::uint32_t alpha = pixel >> 24;
  if (alpha == kOpaque) return LinearRgb(pixel);
  const float share = static_cast<float>(alpha) / static_cast<float>(kOpaque);
  return LinearRgb(pixel) * share + backdrop * (1 - share);
}

struct Adjustment {
  explicit Adjustment(const Preparation& preparation)
      : shift(static_cast<float>(preparation.brightness) / Preparation::kMost / 2),
        slope(Slope(preparation.contrast)),
        colour(Slope(preparation.saturation)),
        power(static_cast<float>(1 / preparation.gamma)) {}

  // -100 is none at all, 0 leaves it, 100 is four times as much.
  static float Slope(int value) {
    const float share = static_cast<float>(value) / Preparation::kMost;
    return value <= 0 ? 1 + share : 1 + 3 * share;
  }

  bool IsNone() const { return shift == 0 && slope == 1 && colour == 1 && power == 1; }

  // Of a channel, 0..1, as the screen has it.
  float Channel(float value) const {
    return std::clamp((std::pow(std::clamp(value, 0.0F, 1.0F), power) - 0.5F) * slope + 0.5F + shift, 0.0F, 1.0F);
  }

  float shift, slope, colour, power;
};

// The sRGB curve without steps, and back.
float Encoded(float light) {
  return light <= 0.0031308F ? light * 12.92F : 1.055F * std::pow(light, 1 / 2.4F) - 0.055F;
}
float Decoded(float value) {
  return value <= 0.04045F ? value / 12.92F : std::pow((value + 0.055F) / 1.055F, 2.4F);
}

}  // namespace

Area AreaFor(int image_width, int image_height, const CellGrid& grid, const Preparation& preparation) {
  Area area =
      preparation.crop.value_or(Area{0, 0, static_cast<double>(image_width), static_cast<double>(image_height)});
  area.width = std::max(area.width, 1.0);
  area.height = std::max(area.height, 1.0);
  if (preparation.fit == Fit::kStretch) return area;
  const double aspect = 2.0 * grid.Width() / grid.Height();
  const bool too_wide = area.width > area.height * aspect;
  const Area whole = area;
  if (too_wide == (preparation.fit == Fit::kCover)) {
    area.width = area.height * aspect;
  } else {
    area.height = area.width / aspect;
  }
  area.left += (whole.width - area.width) / 2;
  area.top += (whole.height - area.height) / 2;
  return area;
}

LightMap SampleLight(const RgbImage& image, const Area& area, const CellGrid& grid, std::uint32_t backdrop) {
  const auto across = SharesAlong(area.left, area.width, image.width, grid.Width());
  const auto down = SharesAlong(area.top, area.height, image.height, grid.Height());
  const Triple behind = LinearRgb(backdrop);
  LightMap light(grid.Pixels());
  InParallel(grid.Height(), [&](int y) {
    Triple* row = &light[static_cast<std::size_t>(y) * static_cast<std::size_t>(grid.Width())];
    for (const Share& line : down[static_cast<std::size_t>(y)]) {
      for (std::size_t x = 0; x < across.size(); ++x) {
        for (const Share& column : across[x]) {
          const bool outside = line.from < 0 || column.from < 0;
          const Triple pixel = outside ? behind : LightOver(image.At(column.from, line.from), behind);
          row[x] += pixel * static_cast<float>(line.width * column.width);
        }
      }
    }
  });
  return light;
}

LightMap AdjustLight(LightMap light, const Preparation& preparation) {
  const Adjustment adjustment(preparation);
  if (adjustment.IsNone()) return light;
  for (Triple& pixel : light) {
    const Triple value{adjustment.Channel(Encoded(pixel.x)), adjustment.Channel(Encoded(pixel.y)),
                       adjustment.Channel(Encoded(pixel.z))};
    constexpr Triple kLuma{0.2126F, 0.7152F, 0.0722F};  // ITU-R BT.709
    const float grey = Dot(value, kLuma);
    const auto coloured = [&](float channel) {
      return Decoded(std::clamp(grey + (channel - grey) * adjustment.colour, 0.0F, 1.0F));
    };
    pixel = {coloured(value.x), coloured(value.y), coloured(value.z)};
  }
  return light;
}

}  // namespace kelvo::convert
