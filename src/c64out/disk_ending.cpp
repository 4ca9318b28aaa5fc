#include "c64out/disk_ending.h"

#include <algorithm>

#include "app/path_text.h"
#include "app/text.h"
#include "app/utf8.h"
#include "app/whole_file.h"
#include "c64out/output_settings.h"
#include "c64out/set_aside.h"
#include "c64out/short_path.h"
#include "c64out/vice_folder.h"

namespace kelvo::c64out {
namespace {

constexpr std::size_t kNameCharacters = 16;

constexpr std::string_view kNotInNames = ":,=*?\"";

// Refuses what c1541 takes for a command, and what a C64's disk system acts upon or cannot write.
void RequireDiskName(const std::string& name) {
  const bool is_ascii = std::all_of(name.begin(), name.end(), [](char c) { return c >= ' ' && c <= '~'; });
  if (is_ascii && name.find_first_of(kNotInNames) == std::string::npos && name.find_first_of("-@$#&") != 0) return;
  throw std::runtime_error("c1541: a disk cannot hold the name " + name + "; set a PRG name in the VICE settings");
}

}  // namespace

std::string NameOnDisk(std::string_view name) {
  return std::string(app::FirstCharacters(app::ToLower(name), kNameCharacters)) + ".prg";
}

std::optional<ToolCommand> EndWithDisk(const BuildJob& job) {
  const std::filesystem::path image = job.BesidePicture(".d64");
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
