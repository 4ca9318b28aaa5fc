#include <vector>

#include "cli/commands/commands.h"
#include "cli/commands/image_input.h"
#include "cli/commands/output.h"
#include "cli/commands/palette_choice.h"
#include "cli/commands/picture_formats.h"
#include "cli/commands/picture_input.h"

namespace kelvo::cli {
namespace {

model::PictureImage PictureOrImage(const std::string& operand, const Arguments& arguments,
                                   const app::SettingsStore& settings, const files::Palette& palette) {
  const app::Bytes bytes = ReadInput(operand, kMostImageBytes);
  if (!arguments.Has(kFrom) && IsImage(operand, bytes)) return Imported(operand, bytes, arguments, palette);
  for (const Option* option : {&kDither, &kFit}) {
    if (!arguments.Has(*option)) continue;
    throw UsageError(NameOfInput(operand) + ": " + std::string(option->name) + " is for images", arguments.command);
  }
  return DecodePicture(operand, bytes, arguments, settings).picture;
}

}  // namespace

ExitCode Convert(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const files::Palette palette = ChosenPalette(arguments, settings);
  const std::string format = FormatToWrite(arguments);
  const auto inputs = arguments.Inputs();
  const std::vector<std::string> outputs = OutputsFor(arguments, format);
  RequireOtherThanInputs(arguments, outputs);
  std::vector<app::Bytes> made(inputs.size());
  const ExitCode code = ReportEach(inputs.size(), [&](std::size_t i) {
    made[i] = EncodedAs(format, PictureOrImage(inputs[i], arguments, settings, palette), palette);
    return Report();
  });
  if (code == kDone) WriteOutputs(outputs, made);
  return code;
}

}  // namespace kelvo::cli
