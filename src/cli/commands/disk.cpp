#include <set>

#include "app/path_text.h"
#include "cli/commands/build.h"
#include "cli/commands/disk_image.h"
#include "cli/commands/output.h"
#include "cli/commands/picture_input.h"

namespace kelvo::cli {
namespace {

std::vector<std::string> NamesOnDisk(const Arguments& arguments) {
  const auto inputs = arguments.Inputs();
  if (arguments.Has(kName) && inputs.size() > 1) throw UsageError("--name is for one picture", arguments.command);
  std::vector<std::string> names;
  std::set<std::string> taken;
  for (const std::string& input : inputs) {
    names.push_back(NameFor(input, app::TextFromPath(app::PathFromText(input).stem()), arguments));
    if (taken.insert(names.back()).second) continue;
    throw UsageError("two programs would be called " + names.back(), arguments.command);
  }
  return names;
}

}  // namespace

ExitCode MakeDisk(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const auto inputs = arguments.Inputs();
  RequireOtherThanInputs(arguments, {arguments.Output()});
  const std::vector<std::string> names = NamesOnDisk(arguments);
  const std::filesystem::path disk_tool = FindDiskTool(arguments, settings);
  std::vector<app::Bytes> programs(inputs.size());
  const ExitCode code = ReportEach(inputs.size(), [&](std::size_t i) {
    BuiltProgram program = BuildProgram(ReadPicture(inputs[i], arguments, settings).picture, arguments, ports);
    programs[i] = std::move(program.bytes);
    return Report{.notes = program.notes};
  });
  if (code == kDone) WriteOutput(arguments.Output(), DiskWith(programs, names, disk_tool, ports));
  return code;
}

}  // namespace kelvo::cli
