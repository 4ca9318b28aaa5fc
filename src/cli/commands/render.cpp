#include "cli/commands/commands.h"
#include "cli/commands/output.h"
#include "cli/commands/palette_choice.h"
#include "cli/commands/picture_input.h"
#include "images/picture_png.h"

namespace kelvo::cli {

ExitCode Render(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  RequireOtherThanInputs(arguments, {arguments.Output()});
  const files::Palette palette = ChosenPalette(arguments, settings);
  const model::PictureImage picture = ReadPicture(arguments.operands.front(), arguments, settings).picture;
  const auto size = arguments.Has(kBorder) ? images::ImageSize::kBorder : images::ImageSize::kScreen;
  const auto image = images::ImageOf(picture, palette, size, arguments.Number(kScale).value_or(1));
  WriteOutput(arguments.Output(), images::PngOf(arguments.Has(kAspect) ? images::AsHighAsOnPal(image) : image));
  return kDone;
}

}  // namespace kelvo::cli
