#include <array>
#include <utility>
#include <vector>

#include "app/number_text.h"
#include "cli/commands/commands.h"
#include "cli/commands/image_input.h"
#include "cli/commands/palette_choice.h"
#include "cli/commands/picture_input.h"
#include "convert/exact_picture.h"
#include "model/palette.h"

namespace kelvo::cli {
namespace {

constexpr std::array<std::pair<int, int>, 3> kSizes{{{160, 200}, {320, 200}, {384, 272}}};

// The names of the colours that are in `set`, with commas between.
std::string NamesIn(convert::ColourSet set) {
  std::string names;
  for (std::size_t number = 0; number < model::kPalette.size(); ++number) {
    if ((set & convert::SetOf(static_cast<int>(number))) == 0) continue;
    names += (names.empty() ? "" : ", ") + std::string(model::kPalette[number].name);
  }
  return names.empty() ? "none" : names;
}

convert::ColourSet BackgroundsThatFit(const convert::ColourMap& map) {
  convert::ColourSet fitting = 0;
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    const auto background = *model::C64Colour::FromNumber(number);
    if (convert::CellsBeyondRule(map, background).empty()) fitting |= convert::SetOf(number);
  }
  return fitting;
}

// Why an image is no picture, whatever its cells.
std::string WhyNone(const convert::RgbImage& image) {
  for (const auto& [width, height] : kSizes) {
    if (image.width % width == 0 && image.width / width * height == image.height) {
      return "it has other colors than a C64's, or pixels that are not twice as wide as high";
    }
  }
  return "it has " + std::to_string(image.width) + " x " + std::to_string(image.height) +
         " pixels; 160 x 200, 320 x 200, and 384 x 272 with a border are a picture, or a multiple of that";
}

Report Judged(const std::string& name, const convert::ColourMap& map, model::C64Colour background) {
  const std::vector<int> beyond = convert::CellsBeyondRule(map, background);
  const std::string no = app::Counted(static_cast<int>(beyond.size()), "cell") + " beyond the rule";
  std::string text = name + ": " + (beyond.empty() ? "it obeys the rule" : no) + " with the background " +
                     std::string(model::ColourName(background)) + "\n";
  for (const int cell : beyond) {
    text += "  cell " + std::to_string(cell % map.grid.cells_wide + 1) + "," +
            std::to_string(cell / map.grid.cells_wide + 1) + ": " + NamesIn(map.ColoursIn(cell)) + "\n";
  }
  text += "  backgrounds that would do: " + NamesIn(BackgroundsThatFit(map)) + "\n";
  return {beyond.empty() ? kDone : kNo, text, {}};
}

}  // namespace

ExitCode Check(const Arguments& arguments, const Ports& ports) {
  const auto palettes = PalettesOfImages(ChosenPalette(arguments, ChosenSettings(arguments, ports)));
  const auto inputs = arguments.Inputs();
  return ReportEach(inputs.size(), [&](std::size_t i) {
    const std::string name = NameOfInput(inputs[i]);
    const convert::RgbImage image = ImageIn(inputs[i], ReadInput(inputs[i], kMostImageBytes));
    const auto map = convert::PaletteColoursOf(image, palettes);
    if (map) return Judged(name, *map, ChosenBackground(arguments).value_or(map->background));
    return Report{kNo, name + ": " + WhyNone(image) + "\n"};
  });
}

}  // namespace kelvo::cli
