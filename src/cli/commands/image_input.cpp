#include "cli/commands/image_input.h"

#include <algorithm>

#include "cli/commands/picture_input.h"
#include "convert/conversion.h"
#include "convert/exact_picture.h"
#include "convert/into_picture.h"
#include "images/image_reading.h"
#include "model/named_palettes.h"

namespace kelvo::cli {
namespace {

convert::Fit FitFor(const Arguments& arguments) {
  const std::string fit = arguments.Text(kFit);
  if (fit == "contain") return convert::Fit::kContain;
  return fit == "stretch" ? convert::Fit::kStretch : convert::Fit::kCover;
}

// SVG, packed or not: Qt draws its letters only where there are windows.
bool IsOfLines(const app::Bytes& bytes) {
  const auto first = std::ranges::find_if(bytes, [](std::uint8_t byte) { return byte > ' '; });
  return first != bytes.end() && (*first == '<' || (bytes[0] == 0x1F && bytes[1] == 0x8B));
}

float GrainFor(const Arguments& arguments, const convert::Conversion& conversion) {
  const auto* dither = std::ranges::find(convert::kDithers, arguments.Text(kDither), &convert::Dither::name);
  return (dither == convert::kDithers.end() ? conversion.ProposedDither() : *dither).grain;
}

}  // namespace

convert::RgbImage ImageIn(const std::string& operand, const app::Bytes& bytes) {
  try {
    if (IsOfLines(bytes)) throw std::runtime_error("this is a drawing made of lines, which the editor alone imports");
    return images::ReadImage(
        QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(NameOfInput(operand) + ": " + error.what());
  }
}

std::vector<model::SurfaceColours> PalettesOfImages(const files::Palette& chosen) {
  std::vector<model::SurfaceColours> palettes{chosen.colours};
  for (const model::NamedPalette& named : model::kNamedPalettes) palettes.push_back(named.colours);
  return palettes;
}

std::optional<model::C64Colour> ChosenBackground(const Arguments& arguments) {
  const auto number = arguments.Number(kBackground);
  return number ? model::C64Colour::FromNumber(*number) : std::nullopt;
}

model::PictureImage Imported(const std::string& operand, const app::Bytes& bytes, const Arguments& arguments,
                             const files::Palette& palette) {
  const convert::RgbImage image = ImageIn(operand, bytes);
  const auto palettes = PalettesOfImages(palette);
  if (arguments.Has(kExact)) {
    const auto map = convert::ExactPicture(image, palettes, ChosenBackground(arguments));
    if (map) return convert::PictureOf(*map);
    throw PictureSaysNo(NameOfInput(operand) + ": this is no picture that a C64 shows as it is");
  }
  convert::Conversion conversion(image, palettes);
  convert::Wishes wishes;
  wishes.grain = GrainFor(arguments, conversion);
  wishes.background = ChosenBackground(arguments);
  wishes.palette = palette.colours;
  wishes.preparation.fit = FitFor(arguments);
  app::NoProgress nobody_watches;
  return convert::PictureOf(conversion.Convert(wishes, nobody_watches).map);
}

}  // namespace kelvo::cli
