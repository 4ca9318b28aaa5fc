#include <algorithm>
#include <cstdlib>
#include <set>

#include "app/path_text.h"
#include "app/text.h"
#include "app/whole_file.h"
#include "c64out/disk_ending.h"
#include "c64out/disk_name.h"
#include "c64out/output_settings.h"
#include "c64out/short_path.h"
#include "c64out/vice_folder.h"
#include "cli/commands/build.h"
#include "cli/commands/output.h"
#include "cli/commands/picture_input.h"

namespace kelvo::cli {
namespace {

std::string NameFor(const std::string& operand, const Arguments& arguments) {
  std::string name = arguments.Text(kName);
  std::ranges::replace(name, ' ', '.');
  if (name.empty()) name = app::TextFromPath(app::PathFromText(operand).stem());
  std::string on_disk = c64out::NameOnDisk(name);
  if (c64out::FitsDisk(on_disk)) return on_disk;
  throw UsageError(
      operand + ": a disk cannot hold the name " + name + "; one like it is " + c64out::ProposedDiskName(name),
      arguments.command);
}

std::vector<std::string> NamesOnDisk(const Arguments& arguments) {
  const auto inputs = arguments.Inputs();
  if (arguments.Has(kName) && inputs.size() > 1) throw UsageError("--name is for one picture", arguments.command);
  std::vector<std::string> names;
  std::set<std::string> taken;
  for (const std::string& input : inputs) {
    names.push_back(NameFor(input, arguments));
    if (taken.insert(names.back()).second) continue;
    throw UsageError("two programs would be called " + names.back(), arguments.command);
  }
  return names;
}

// Where --vice says, else the settings, else on the search path.
std::filesystem::path FindDiskTool(const Arguments& arguments, const app::SettingsStore& settings) {
  const char* search_path = std::getenv("PATH");
  std::string folder = arguments.Text(kVice, app::Trimmed(settings.Read(c64out::kVicePath)));
  if (folder.empty() && search_path != nullptr) folder = c64out::DiskToolOnPath(search_path);
  if (!folder.empty()) return c64out::DiskTool(folder);
  throw std::runtime_error("c1541: it is not on the PATH; it comes with VICE, and --vice says where it is");
}

// The image with all programs on it, in the order of their pictures.
app::Bytes DiskWith(const std::vector<app::Bytes>& programs, const std::vector<std::string>& names,
                    const std::filesystem::path& disk_tool, const Ports& ports) {
  const TemporaryFolder place;
  const std::filesystem::path image = place.Path() / "disk.d64";
  app::CopyWholeFile(ports.shipped / "SYSTEM" / "empty.d64", image);
  std::vector<std::string> words{c64out::ShortPath(image)};
  for (std::size_t i = 0; i < programs.size(); ++i) {
    const std::filesystem::path program = place.Path() / (std::to_string(i) + ".prg");
    app::WriteWholeFile(program, programs[i], app::Flush::kLater);
    words.insert(words.end(), {"-write", c64out::ShortPath(program), names[i]});
  }
  const c64out::ToolCommand command = c64out::CommandFor(disk_tool, words);
  c64out::RequireSuccess(command, ports.tools.RunAndWait(command));
  return app::ReadWholeFile(image, app::kMostBytesToCopy);
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
