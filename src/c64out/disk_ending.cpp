#include "c64out/disk_ending.h"

#include "app/path_text.h"
#include "app/text.h"
#include "app/utf8.h"
#include "app/whole_file.h"
#include "c64out/disk_name.h"
#include "c64out/output_settings.h"
#include "c64out/set_aside.h"
#include "c64out/short_path.h"
#include "c64out/vice_folder.h"

namespace kelvo::c64out {
namespace {

constexpr std::size_t kNameCharacters = 16;

void RequireDiskName(const std::string& name) {
  if (FitsDisk(name)) return;
  const std::string proposed = ProposedDiskName(name.substr(0, name.rfind('.')));
  throw std::runtime_error("c1541: a disk cannot hold the name " + name + "; set a PRG name in the VICE settings" +
                           (proposed.empty() ? "" : ", such as " + proposed));
}

}  // namespace

std::string NameOnDisk(std::string_view name) {
  return std::string(app::FirstCharacters(app::ToLower(name), kNameCharacters)) + ".prg";
}

std::optional<ToolCommand> EndWithDisk(const BuildJob& job) {
  const std::filesystem::path image = job.Result(".d64");
  const std::string folder = job.Setting(kVicePath), name = NameOnDisk(job.DiskFileName(kVicePrgName));
  RequireDiskName(name);
  SetAside older(image);
  app::CopyWholeFile(job.System("empty.d64"), image);
  const std::string image_path = ShortPath(image);
  job.Run(DiskTool(folder), {image_path, "-write", ShortPath(job.Files().program), name});
  older.Drop();
  job.Print("--> D64 complete.");
  if (!job.Choice().LaunchVice) return std::nullopt;
  job.Print("--> Launching VICE.");
  return CommandFor(FindEmulator(folder).value_or(app::PathFromText(folder)), {"-autostart", image_path + ":" + name});
}

}  // namespace kelvo::c64out
