// Any image with any wishes: the picture obeys the cell rule, the cells beside it stay, and what is a picture already
// comes back.
#include "convert/conversion.h"
#include "convert/exact_picture.h"
#include "convert/into_picture.h"
#include "input.h"
#include "model/pixel_colour.h"

namespace kelvo::fuzz {
namespace {

using namespace convert;

double Between(Input& input, double least, double most) {
  return least + (most - least) * input.Byte() / 255;
}

Preparation AnyPreparation(Input& input) {
  Preparation preparation;
  preparation.fit = static_cast<Fit>(input.Below(3));
  if (input.Bit()) {
    preparation.crop =
        Area{Between(input, -300, 300), Between(input, -300, 300), Between(input, 0, 600), Between(input, 0, 600)};
  }
  preparation.brightness = input.Below(201) - Preparation::kMost;
  preparation.contrast = input.Below(201) - Preparation::kMost;
  preparation.saturation = input.Below(201) - Preparation::kMost;
  preparation.gamma = Between(input, 0.2, 5);
  preparation.backdrop = 0xFF000000U | static_cast<std::uint32_t>(input.Byte()) << 8;
  return preparation;
}

Wishes AnyWishes(Input& input) {
  Wishes wishes;
  if (input.Bit()) wishes.preparation = AnyPreparation(input);
  wishes.grain = input.Bit() ? kNoGrain : static_cast<float>(Between(input, kStrongestGrain, kFaintestGrain));
  wishes.background = model::C64Colour::FromNumber(input.Below(17));
  wishes.grid = {1 + input.Below(4), 1 + input.Below(4)};
  if (input.Bit()) wishes.effort = Effort::kQuick;
  return wishes;
}

RgbImage AnyImage(Input& input) {
  RgbImage image{1 + input.Below(40), 1 + input.Below(40), {}};
  const auto bytes = input.Rest();
  const std::size_t pixels = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height);
  for (std::size_t at = 0; at < pixels * 4; at += 4) {
    std::uint32_t pixel = 0;
    for (std::size_t n = 0; n < 4 && !bytes.empty(); ++n) pixel = pixel << 8 | bytes[(at + n) % bytes.size()];
    image.pixels.push_back(pixel);
  }
  return image;
}

void CheckPart(const ColourMap& map, int column, int row) {
  model::PictureImage picture;
  picture.ScreenMemory.fill(0x12);
  PutInto(picture, map, column, row);
  for (int y = 1; y <= model::PictureImage::kHeight; ++y) {
    for (int x = 1; x <= model::PictureImage::kWidth; ++x) {
      const int map_x = x - 1 - column * CellGrid::kCellWidth, map_y = y - 1 - row * CellGrid::kCellHeight;
      const bool covered = map_x >= 0 && map_x < map.grid.Width() && map_y >= 0 && map_y < map.grid.Height();
      const int expected =
          covered ? map.colours[static_cast<std::size_t>(map_y * map.grid.Width() + map_x)] : map.background.Number();
      Require(model::GetPixelData(picture, x, y).colour.Number() == expected, "a part changes its own cells alone");
    }
  }
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  const convert::Wishes wishes = fuzz::AnyWishes(input);
  const int column = input.Below(40) - 2, row = input.Below(25) - 2;
  convert::Conversion conversion(fuzz::AnyImage(input), {});
  app::NoProgress nobody;
  const convert::Converted converted = conversion.Convert(wishes, nobody);
  fuzz::Require(converted.map.colours.size() == wishes.grid.Pixels(), "every pixel has a colour");
  fuzz::Require(convert::CellsBeyondRule(converted.map, converted.map.background).empty(), "the cell rule holds");
  fuzz::Require(!wishes.background || *wishes.background == converted.map.background, "a background wished for stays");
  fuzz::CheckPart(converted.map, column, row);
  return 0;
}
