#include "cli/commands/commands.h"
#include "cli/commands/output.h"
#include "cli/commands/picture_formats.h"
#include "cli/commands/picture_input.h"
#include "optimise/background_colour.h"
#include "optimise/packing.h"

namespace kelvo::cli {

ExitCode Optimise(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const std::string format = FormatToWrite(arguments);
  RequireOtherThanInputs(arguments, {arguments.Output()});
  model::PictureImage picture = ReadPicture(arguments.operands.front(), arguments, settings).picture;
  const bool does_both = !arguments.Has(kBackgroundPass) && !arguments.Has(kPackingPass);
  app::NoProgress progress;
  if (does_both || arguments.Has(kBackgroundPass)) optimise::OptimizeBackgroundColor(picture, progress, [](int) {});
  if (does_both || arguments.Has(kPackingPass)) optimise::OptimizeForPacking(picture, progress);
  WriteOutput(arguments.Output(), EncodedAs(format, picture, files::LoadPalette("Kelvo")));
  return kDone;
}

}  // namespace kelvo::cli
