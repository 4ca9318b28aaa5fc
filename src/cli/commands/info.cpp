#include <array>

#include "app/number_text.h"
#include "cli/commands/commands.h"
#include "cli/commands/picture_input.h"
#include "cli/json_text.h"
#include "model/cell_use.h"
#include "model/palette.h"

namespace kelvo::cli {
namespace {

using model::PictureImage;

struct PictureFacts {
  int load_address;
  std::array<int, model::C64Colour::kCount> cells_showing;
  std::array<int, model::kOwnColours + 1> cells_with_free{};  // by how many own colours are free
};

PictureFacts FactsOf(const PictureImage& picture) {
  PictureFacts facts{.load_address = picture.LoadAddressHigh << 8 | picture.LoadAddressLow,
                     .cells_showing = model::CellsShowing(picture)};
  for (int cell = 1; cell <= PictureImage::kCells; ++cell) {
    ++facts.cells_with_free[static_cast<std::size_t>(model::FreeOwnColours(picture, cell))];
  }
  return facts;
}

// How many cells show each colour, one below the other.
std::string ColourLines(const PictureFacts& facts) {
  std::string lines;
  for (std::size_t number = 0; number < facts.cells_showing.size(); ++number) {
    if (facts.cells_showing[number] == 0) continue;
    const std::string cells = std::to_string(facts.cells_showing[number]);
    lines += (lines.empty() ? "  cells with  " : "              ") + std::string(4 - cells.size(), ' ') + cells + "  " +
             std::string(model::kPalette[number].name) + "\n";
  }
  return lines;
}

std::string FactsAsText(const std::string& operand, const PictureInput& input) {
  const PictureFacts facts = FactsOf(input.picture);
  std::string text = NameOfInput(operand) + "\n  format      " + std::string(input.format) + ", " +
                     std::to_string(input.size) + " bytes, loads to $" + app::ToHex(facts.load_address, 4) +
                     "\n  background  " + std::string(model::ColourName(input.picture.BackgroundColour)) + "\n" +
                     ColourLines(facts) + "  free colors";
  for (std::size_t free = 0; free < facts.cells_with_free.size(); ++free) {
    text += (free == 0 ? " " : ", ") + std::to_string(free) + " in " + std::to_string(facts.cells_with_free[free]);
  }
  return text + " cells\n  exactly     " + (input.reads_differently ? "another picture" : "the same picture") + "\n";
}

std::string FactsAsJson(const std::string& operand, const PictureInput& input) {
  const PictureFacts facts = FactsOf(input.picture);
  std::string colours, free;
  for (std::size_t number = 0; number < facts.cells_showing.size(); ++number) {
    if (facts.cells_showing[number] == 0) continue;
    colours +=
        (colours.empty() ? "\"" : ",\"") + std::to_string(number) + "\":" + std::to_string(facts.cells_showing[number]);
  }
  for (const int cells : facts.cells_with_free) free += (free.empty() ? "" : ",") + std::to_string(cells);
  return "{\"file\":" + JsonText(operand) + ",\"format\":" + JsonText(input.format) +
         ",\"size\":" + std::to_string(input.size) + ",\"loadAddress\":" + std::to_string(facts.load_address) +
         ",\"background\":" + std::to_string(input.picture.BackgroundColour.Number()) + ",\"cellsShowing\":{" +
         colours + "},\"cellsWithFree\":[" + free +
         "],\"exactDiffers\":" + (input.reads_differently ? "true" : "false") + "}\n";
}

}  // namespace

ExitCode Info(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const auto inputs = arguments.Inputs();
  return ReportEach(inputs.size(), [&](std::size_t i) {
    const PictureInput input = ReadPicture(inputs[i], arguments, settings);
    return Report{.text = arguments.Has(kJson) ? FactsAsJson(inputs[i], input) : FactsAsText(inputs[i], input)};
  });
}

}  // namespace kelvo::cli
