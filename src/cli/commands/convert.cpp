#include <vector>

#include "cli/commands/commands.h"
#include "cli/commands/output.h"
#include "cli/commands/palette_choice.h"
#include "cli/commands/picture_formats.h"
#include "cli/commands/picture_input.h"

namespace kelvo::cli {

ExitCode Convert(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const files::Palette palette = ChosenPalette(arguments, settings);
  const std::string format = FormatToWrite(arguments);
  const auto inputs = arguments.Inputs();
  const std::vector<std::string> outputs = OutputsFor(arguments, format);
  RequireOtherThanInputs(arguments, outputs);
  std::vector<app::Bytes> made(inputs.size());
  const ExitCode code = ReportEach(inputs.size(), [&](std::size_t i) {
    made[i] = EncodedAs(format, ReadPicture(inputs[i], arguments, settings).picture, palette);
    return Report();
  });
  for (std::size_t i = 0; code == kDone && i < made.size(); ++i) WriteOutput(outputs[i], made[i]);
  return code;
}

}  // namespace kelvo::cli
