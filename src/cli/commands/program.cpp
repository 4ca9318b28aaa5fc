#include "cli/commands/build.h"
#include "cli/commands/output.h"
#include "cli/commands/picture_input.h"
#include "cli/standard_streams.h"

namespace kelvo::cli {

ExitCode MakeProgram(const Arguments& arguments, const Ports& ports) {
  const std::string& operand = arguments.operands.front();
  RequireOtherThanInputs(arguments, {arguments.Output()});
  const PictureInput input = ReadPicture(operand, arguments, ChosenSettings(arguments, ports));
  const BuiltProgram program = BuildProgram(input.picture, arguments, ports);
  Complain(program.notes);
  WriteOutput(arguments.Output(), program.bytes);
  return kDone;
}

}  // namespace kelvo::cli
