#include "convert/exact_picture.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <map>
#include <set>

namespace kelvo::convert {
namespace {

constexpr int kMostOff = 2;
constexpr std::uint32_t kOpaque = 0xFF000000;

// How an image holds a picture, in pixels of the image's smallest size.
struct Frame {
  int width, height, left, top, pixel_width;
};
constexpr std::array<Frame, 3> kFrames{{{160, 200, 0, 0, 1}, {320, 200, 0, 0, 2}, {384, 272, 32, 35, 2}}};

using Pixels = std::vector<std::uint32_t>;

// A picture's pixels and its border's, as they stand in an image.
struct FramedPixels {
  Pixels pixels;
  std::optional<std::uint32_t> border;
};

// The one colour of a block of pixels; empty where there are two.
std::optional<std::uint32_t> ColourOfBlock(const RgbImage& image, int left, int top, int width, int height) {
  const std::uint32_t colour = image.At(left, top);
  for (int y = top; y < top + height; ++y) {
    for (int x = left; x < left + width; ++x) {
      if (image.At(x, y) != colour) return std::nullopt;
    }
  }
  return colour;
}

std::optional<FramedPixels> PixelsIn(const RgbImage& image, const Frame& frame) {
  const int scale = image.width / frame.width;
  if (scale < 1 || image.width != scale * frame.width || image.height != scale * frame.height) return std::nullopt;
  const CellGrid grid;
  FramedPixels framed;
  for (int y = 0; y < grid.Height(); ++y) {
    for (int x = 0; x < grid.Width(); ++x) {
      const int width = frame.pixel_width * scale;
      const auto colour = ColourOfBlock(image, frame.left * scale + x * width, (frame.top + y) * scale, width, scale);
      if (!colour) return std::nullopt;
      framed.pixels.push_back(*colour);
    }
  }
  if (frame.top > 0) framed.border = ColourOfBlock(image, 0, 0, image.width, frame.top * scale);
  return framed;
}

int ChannelsApart(std::uint32_t a, std::uint32_t b) {
  int most = 0;
  for (const int shift : {0, 8, 16}) {
    most = std::max(most, std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)));
  }
  return most;
}

using Numbers = std::map<std::uint32_t, std::uint8_t>;

// The colour numbers of all of `colours`; empty where one is not in the palette, or two are the same.
std::optional<Numbers> NumbersIn(const model::SurfaceColours& palette, const std::set<std::uint32_t>& colours,
                                 int& off) {
  Numbers numbers;
  ColourSet taken = 0;
  off = 0;
  for (const std::uint32_t colour : colours) {
    const auto apart = [&](std::uint32_t entry) { return ChannelsApart(colour, entry); };
    const auto nearest = std::ranges::min_element(palette, {}, apart);
    const auto number = static_cast<int>(nearest - palette.begin());
    if (apart(*nearest) > kMostOff || (taken & SetOf(number)) != 0) return std::nullopt;
    off += apart(*nearest);
    taken |= SetOf(number);
    numbers[colour] = static_cast<std::uint8_t>(number);
  }
  return numbers;
}

// By the palette that is nearest; of equals the first.
std::optional<Numbers> NumbersOf(const FramedPixels& framed, std::span<const model::SurfaceColours> palettes) {
  std::set<std::uint32_t> colours;
  for (const std::uint32_t pixel : framed.pixels) {
    colours.insert(pixel);
    if (colours.size() > kColours || (pixel & kOpaque) != kOpaque) return std::nullopt;
  }
  std::optional<Numbers> best;
  int least = 0;
  for (const model::SurfaceColours& palette : palettes) {
    int off = 0;
    auto numbers = NumbersIn(palette, colours, off);
    if (!numbers || (best && off >= least)) continue;
    best = std::move(numbers);
    least = off;
  }
  return best;
}

struct FramedMap {
  ColourMap map;
  std::optional<model::C64Colour> border;
};

std::optional<FramedMap> FramedMapOf(const RgbImage& image, std::span<const model::SurfaceColours> palettes) {
  for (const Frame& frame : kFrames) {
    const auto framed = PixelsIn(image, frame);
    if (!framed) continue;
    const auto numbers = NumbersOf(*framed, palettes);
    if (!numbers) continue;
    FramedMap read;
    for (const std::uint32_t pixel : framed->pixels) read.map.colours.push_back(numbers->at(pixel));
    const auto border = framed->border ? numbers->find(*framed->border) : numbers->end();
    if (border != numbers->end()) read.border = model::C64Colour::FromByte(border->second);
    return read;
  }
  return std::nullopt;
}

// The border's colour first, then by how many pixels show them.
std::vector<model::C64Colour> BackgroundsByLikelihood(const FramedMap& read) {
  std::array<std::ptrdiff_t, kColours> pixels{};
  for (const std::uint8_t colour : read.map.colours) ++pixels[colour];
  if (read.border) pixels[read.border->Byte()] += static_cast<std::ptrdiff_t>(read.map.colours.size());
  std::vector<model::C64Colour> order;
  for (std::uint8_t colour = 0; colour < kColours; ++colour) order.push_back(model::C64Colour::FromByte(colour));
  std::ranges::stable_sort(order, std::ranges::greater(),
                           [&](model::C64Colour colour) { return pixels[colour.Byte()]; });
  return order;
}

}  // namespace

std::vector<int> CellsBeyondRule(const ColourMap& map, model::C64Colour background) {
  std::vector<int> cells;
  for (int cell = 0; cell < map.grid.Cells(); ++cell) {
    const ColourSet set = map.ColoursIn(cell) | SetOf(background.Number());
    if (std::popcount(set) > kMostColours) cells.push_back(cell);
  }
  return cells;
}

std::optional<ColourMap> PaletteColoursOf(const RgbImage& image, std::span<const model::SurfaceColours> palettes) {
  auto read = FramedMapOf(image, palettes);
  if (!read) return std::nullopt;
  const auto order = BackgroundsByLikelihood(*read);
  const auto beyond = [&](model::C64Colour background) { return CellsBeyondRule(read->map, background).size(); };
  read->map.background = *std::ranges::min_element(order, {}, beyond);
  return std::move(read->map);
}

std::optional<ColourMap> ExactPicture(const RgbImage& image, std::span<const model::SurfaceColours> palettes,
                                      std::optional<model::C64Colour> background) {
  auto map = PaletteColoursOf(image, palettes);
  if (!map) return std::nullopt;
  if (background) map->background = *background;
  if (!CellsBeyondRule(*map, map->background).empty()) return std::nullopt;
  return map;
}

}  // namespace kelvo::convert
