#include "cli/commands/disk_image.h"

#include <algorithm>
#include <cstdlib>

#include "app/text.h"
#include "app/whole_file.h"
#include "c64out/build_job.h"
#include "c64out/disk_ending.h"
#include "c64out/disk_name.h"
#include "c64out/short_path.h"
#include "c64out/vice_folder.h"
#include "cli/temporary_folder.h"

namespace kelvo::cli {

std::string NameFor(const std::string& operand, const std::string& otherwise, const Arguments& arguments) {
  std::string name = arguments.Text(kName);
  std::ranges::replace(name, ' ', '.');
  if (name.empty()) name = otherwise;
  std::string on_disk = c64out::NameOnDisk(name);
  if (c64out::FitsDisk(on_disk)) return on_disk;
  throw UsageError(
      operand + ": a disk cannot hold the name " + name + "; one like it is " + c64out::ProposedDiskName(name),
      arguments.command);
}

std::filesystem::path FindDiskTool(const Arguments& arguments, const app::SettingsStore& settings) {
  const char* search_path = std::getenv("PATH");
  std::string folder = arguments.Text(kVice, app::Trimmed(settings.Read(c64out::kVicePath)));
  if (folder.empty() && search_path != nullptr) folder = c64out::DiskToolOnPath(search_path);
  if (!folder.empty()) return c64out::DiskTool(folder);
  throw std::runtime_error("c1541: it is not on the PATH; it comes with VICE, and --vice says where it is");
}

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

}  // namespace kelvo::cli
