#include <algorithm>
#include <set>

#include "app/number_text.h"
#include "app/path_text.h"
#include "app/text.h"
#include "cli/commands/commands.h"
#include "cli/commands/output.h"
#include "cli/commands/picture_input.h"
#include "cli/standard_streams.h"
#include "sprites/sprite_file.h"

namespace kelvo::cli {
namespace {

using model::PictureImage;

struct Pair {
  int first, second;
};

// Two numbers from 1 on with `between` between them.
Pair PairIn(const Arguments& arguments, const Option& option, char between, const std::string& otherwise) {
  const std::string text = arguments.Text(option, otherwise);
  const std::size_t at = std::min(text.find(between), text.size());
  const auto first = app::WholeNumber<int>(text.substr(0, at));
  const auto second = app::WholeNumber<int>(text.substr(std::min(at + 1, text.size())));
  if (first && second && *first >= 1 && *second >= 1) return {*first, *second};
  throw UsageError(std::string(option.name) + ": \"" + text + "\" is not " + std::string(option.value),
                   arguments.command);
}

// From the top left, row by row.
std::vector<sprites::Sprite> Captured(const PictureImage& picture, const Arguments& arguments) {
  if (!arguments.Has(kAt)) throw UsageError("--at is missing", arguments.command);
  const Pair at = PairIn(arguments, kAt, ',', ""), grid = PairIn(arguments, kGrid, 'x', "1x1");
  const int cells_left = PictureImage::kCellsWide - at.first + 1,
            cells_below = PictureImage::kCellsHigh - at.second + 1;
  if (grid.first > cells_left * 4 / sprites::kSpriteWidth || grid.second > cells_below * 8 / sprites::kSpriteHeight) {
    throw UsageError("such sprites reach beyond the picture", arguments.command);
  }
  std::vector<sprites::Sprite> captured;
  for (int row = 0; row < grid.second; ++row) {
    for (int column = 0; column < grid.first; ++column) {
      const sprites::CaptureArea area{.left = at.first * 4 - 3 + column * sprites::kSpriteWidth,
                                      .top = at.second * 8 - 7 + row * sprites::kSpriteHeight};
      captured.push_back(sprites::Capture(picture, area).front());
    }
  }
  return captured;
}

// Sprites have three colours, and what is lost is said.
std::string ColoursLost(const std::vector<sprites::Sprite>& captured, model::C64Colour background) {
  std::set<int> colours;
  for (const sprites::Sprite& sprite : captured) {
    for (const model::C64Colour colour : sprite) colours.insert(colour.Number());
  }
  colours.erase(background.Number());
  const int lost = static_cast<int>(colours.size()) - 3;
  return lost > 0 ? app::Counted(lost, "color") + " beside the three used most: these pixels are transparent"
                  : std::string();
}

}  // namespace

ExitCode TakeSprites(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  RequireOtherThanInputs(arguments, {arguments.Output()});
  const std::string& operand = arguments.operands.front();
  const PictureImage picture = ReadPicture(operand, arguments, settings).picture;
  const auto captured = Captured(picture, arguments);
  Complain(ColoursLost(captured, picture.BackgroundColour));
  WriteOutput(arguments.Output(),
              sprites::SpriteFile(arguments.Text(kSpriteFormat, "kelvo"), captured, picture.BackgroundColour,
                                  app::FileNamePart(NameOfInput(operand))));
  return kDone;
}

}  // namespace kelvo::cli
