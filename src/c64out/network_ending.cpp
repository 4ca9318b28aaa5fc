#include "c64out/network_ending.h"

#include "app/whole_file.h"
#include "c64out/output_settings.h"
#include "c64out/saver_template.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {
namespace {

constexpr const char* kSaverAddress = "$cf00";

// Runs the network loader: what it does, with what, and the C64's address.
void Send(const BuildJob& job, const std::string& option, const std::string& operand) {
  job.Run(job.System(ToolName("codenet")), {option, operand, "-n", job.Setting(kCodenetC64Ip)});
}

void MakeSaver(const BuildJob& job) {
  const WorkFiles& files = job.Files();
  FillSaverTemplate(job.System("15x1save.src"), files.saver_source, job.DiskFileName(kCodenetPrgName),
                    app::FileSize(files.program));
  const std::string source = ShortPath(files.saver_source);
  job.Make(files.saver, job.System(ToolName("tass")), {source, WithEnding(source, ".tmp", ".prg")});
  Remove(files.saver_source);
}

void SaveOnDrive(const BuildJob& job) {
  MakeSaver(job);
  Send(job, "-w", ShortPath(job.Files().saver));
  Remove(job.Files().saver);
  Send(job, "-w", ShortPath(job.Files().program));
  job.Print("--> Saving...");
  Send(job, "-e", kSaverAddress);
}

}  // namespace

void EndOverNetwork(const BuildJob& job) {
  job.Print("--> Sending to " + job.Setting(kCodenetC64Ip));
  if (job.Choice().SaveOn15x1) return SaveOnDrive(job);
  Send(job, "-x", ShortPath(job.Files().program));
  job.Print("--> Transfer complete");
}

}  // namespace kelvo::c64out
