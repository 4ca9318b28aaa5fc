#include <array>

#include "app/number_text.h"
#include "cli/commands/commands.h"
#include "cli/commands/picture_input.h"
#include "cli/standard_streams.h"
#include "model/cell_use.h"
#include "model/palette.h"
#include "model/pixel_colour.h"

namespace kelvo::cli {
namespace {

using model::PictureImage;

struct Difference {
  int pixels = 0, cells = 0;
  std::string cell_lines;
};

int PixelsThatDiffer(const PictureImage& a, const PictureImage& b, int column, int row) {
  int pixels = 0;
  for (int y = row * 8 - 7; y <= row * 8; ++y) {
    for (int x = column * 4 - 3; x <= column * 4; ++x) {
      if (model::GetPixelData(a, x, y).colour != model::GetPixelData(b, x, y).colour) ++pixels;
    }
  }
  return pixels;
}

Difference Compared(const PictureImage& a, const PictureImage& b) {
  Difference difference;
  for (int row = 1; row <= PictureImage::kCellsHigh; ++row) {
    for (int column = 1; column <= PictureImage::kCellsWide; ++column) {
      const int pixels = PixelsThatDiffer(a, b, column, row);
      if (pixels == 0) continue;
      difference.pixels += pixels;
      ++difference.cells;
      difference.cell_lines +=
          "cell " + std::to_string(column) + "," + std::to_string(row) + ": " + app::Counted(pixels, "pixel") + "\n";
    }
  }
  return difference;
}

std::string ColoursThatDiffer(const PictureImage& a, const PictureImage& b) {
  const auto in_a = model::CellsShowing(a), in_b = model::CellsShowing(b);
  std::string lines;
  for (std::size_t number = 0; number < in_a.size(); ++number) {
    if (in_a[number] == in_b[number]) continue;
    lines += "color " + std::string(model::kPalette[number].name) + ": " + app::Counted(in_a[number], "cell") +
             ", then " + std::to_string(in_b[number]) + "\n";
  }
  return lines;
}

}  // namespace

ExitCode Diff(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const PictureImage a = ReadPicture(arguments.operands[0], arguments, settings).picture;
  const PictureImage b = ReadPicture(arguments.operands[1], arguments, settings).picture;
  const Difference difference = Compared(a, b);
  const bool same_background = a.BackgroundColour == b.BackgroundColour;
  if (difference.pixels == 0 && same_background) return kDone;
  std::string text = app::Counted(difference.pixels, "pixel") + " in " + app::Counted(difference.cells, "cell") + "\n";
  if (!same_background) {
    text += "background " + std::string(model::ColourName(a.BackgroundColour)) + ", then " +
            std::string(model::ColourName(b.BackgroundColour)) + "\n";
  }
  Print(text + ColoursThatDiffer(a, b) + difference.cell_lines);
  return kNo;
}

}  // namespace kelvo::cli
