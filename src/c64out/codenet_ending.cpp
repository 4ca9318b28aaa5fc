#include "c64out/codenet_ending.h"

#include "c64out/output_settings.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {
namespace {

// Runs the network loader: what it does, the file it does it with, and the C64's address.
void Send(const BuildJob& job, const std::string& option, const std::string& operand) {
  job.Run(job.System(ToolName("codenet")), {option, operand, "-n", job.Setting(kC64Ip)});
}

}  // namespace

void EndWithCodenet(const BuildJob& job) {
  job.Print("--> Sending to " + job.Setting(kC64Ip));
  Send(job, "-x", ShortPath(job.Files().program));
  job.Print("--> Transfer complete");
}

}  // namespace kelvo::c64out
