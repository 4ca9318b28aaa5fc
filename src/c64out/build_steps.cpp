#include "c64out/build_steps.h"

#include <fstream>

#include "app/whole_file.h"
#include "c64out/c64_memory.h"
#include "c64out/disk_ending.h"
#include "c64out/network_ending.h"
#include "c64out/output_settings.h"
#include "c64out/short_path.h"
#include "c64out/template_error.h"
#include "c64out/vice_folder.h"
#include "files/backups.h"

namespace kelvo::c64out {
namespace {

// The build ends here: the user has been told why by a message box.
struct BuildGivenUp {};

void RequireEmulator(const BuildJob& job) {
  const std::string folder = job.Setting(kVicePath);
  if (folder.empty()) job.With().messages.Warn("VICE path must be specified");
  if (FindEmulator(folder)) return;
  job.With().messages.Warn("Invalid VICE path");
  throw BuildGivenUp();
}

void Begin(const BuildJob& job) {
  if (job.Choice().ViaCodenet) return job.Print("CODENET");
  if (job.Choice().AsksForVice) RequireEmulator(job);
  job.Print(job.Choice().MakePrg ? "CREATING PRG" : "CREATING D64");
}

// Many pictures are files called .prg too. One that is no program is not lost to the new program.
void KeepForeignFile(const BuildJob& job, const std::filesystem::path& prg) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(prg, error) || IsProgram(prg)) return;
  const BuildSurroundings& with = job.With();
  files::Backups(with.folders, with.clock)
      .Keep(app::ReadWholeFile(prg, app::kMostBytesToCopy), job.BaseName(), "_replaced", ".prg");
}

void KeepProgram(const BuildJob& job) {
  const std::filesystem::path prg = job.Result(".prg");
  KeepForeignFile(job, prg);
  app::CopyWholeFile(job.Files().program, prg);
  job.Print("--> PRG complete.");
}

void SendProgram(const BuildJob& job, const BuildSteps& steps) {
  EndOverNetwork(job);
  steps.after_sending();
}

std::optional<ToolCommand> End(const BuildJob& job, const BuildSteps& steps) {
  if (!job.Choice().MakePrg) return EndWithDisk(job);
  job.Choice().ViaCodenet ? SendProgram(job, steps) : KeepProgram(job);
  return std::nullopt;
}

std::optional<ToolCommand> Build(const BuildJob& job, const BuildSteps& steps) {
  Begin(job);
  steps.make();
  auto emulator = End(job, steps);
  Remove(job.Files().program);
  return emulator;
}

// A build that fails leaves no work files; one that is given up leaves what it has, on purpose.
std::optional<ToolCommand> BuildOrCleanUp(const BuildJob& job, const BuildSteps& steps) {
  try {
    return Build(job, steps);
  } catch (const std::exception&) {
    job.Files().RemoveAll();
    throw;
  }
}

// Does `work` and tells how it ended.
BuildOutcome OutcomeOf(const BuildSurroundings& with, const std::function<void()>& work) {
  try {
    work();
    return BuildOutcome::kDone;
  } catch (const BuildGivenUp&) {
    return BuildOutcome::kGivenUp;
  } catch (const BuildStopped& stop) {
    with.prompt.CommandPromptList("--> " + std::string(stop.what()));
    return BuildOutcome::kStopped;
  } catch (const std::exception& error) {
    with.log.Write("modVICEandCodenet_BuildCompoPic: " + std::string(error.what()));
    with.prompt.CommandPromptList("--> " + std::string(error.what()));
    with.prompt.CommandPromptList("--> [err 908]");
    return BuildOutcome::kFailed;
  }
}

}  // namespace

BuildResult RunBuild(const BuildJob& job, const BuildSteps& steps) {
  BuildResult result{};
  result.outcome = OutcomeOf(job.With(), [&] {
    result.emulator = BuildOrCleanUp(job, steps);
    if (!job.Choice().ViaCodenet) result.made = job.Result(job.Choice().MakePrg ? ".prg" : ".d64");
  });
  return result;
}

BuildOutcome ShowInEmulator(const ToolCommand& emulator, const BuildSurroundings& with) {
  return OutcomeOf(with, [&] { RequireSuccess(emulator, with.runner.ShowAndWait(emulator)); });
}

void RemoveOlderProgram(const BuildJob& job) {
  const std::filesystem::path prg = job.Result(".prg");
  KeepForeignFile(job, prg);
  Remove(prg);
}

void RequireInterpreter(const BuildJob& job, const std::filesystem::path& source) {
  if (job.With().runner.CanRun()) return;
  job.With().messages.Warn("Can't find CMD.EXE");
  Remove(source);
  job.Print("--> [err 908]");
  throw BuildGivenUp();
}

void Assemble(const BuildJob& job, const std::filesystem::path& from, const std::filesystem::path& source,
              std::string_view ending, const std::filesystem::path& output, std::string_view output_ending) {
  const std::string path = ShortPath(source);
  try {
    job.Make(output, job.System(ToolName("tass")), {path, WithEnding(path, ending, output_ending)});
  } catch (const BuildStopped&) {
    throw;
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(InTermsOfTemplate(error.what(), source, from, job.Marks()));
  }
  Remove(source);
}

void TellFinding(const BuildJob& job, const ProgramFinding& finding, const std::string& purpose) {
  switch (finding.state) {
    case ProgramState::kShowsPicture:
      return;
    case ProgramState::kShowsOther:
      return job.Print("--> Note: on a C64 this does not " + purpose + "; " + finding.why + ".");
    case ProgramState::kCannotBeJudged:
      return job.Print("--> Note: not tried on a C64; " + finding.why + ".");
    case ProgramState::kCrashes:
      throw std::runtime_error("The program crashes on a C64: " + finding.why);
  }
}

bool IsProgram(const std::filesystem::path& file) {
  constexpr std::uintmax_t kLoadAddressBytes = 2;
  const std::uintmax_t size = app::FileSize(file);
  std::ifstream stream(file, std::ios::binary);
  return size > kLoadAddressBytes && size <= kLoadAddressBytes + kMemorySize && stream.get() == 0x01 &&
         stream.get() == 0x08;
}

app::Bytes BytesOf(const std::filesystem::path& file) {
  return app::ReadWholeFile(file, app::kMostBytesToCopy);
}

}  // namespace kelvo::c64out
