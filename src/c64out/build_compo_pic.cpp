#include "c64out/build_compo_pic.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <span>

#include "app/number_text.h"
#include "app/path_text.h"
#include "app/whole_file.h"
#include "c64out/c64_memory.h"
#include "c64out/disk_ending.h"
#include "c64out/fill_template.h"
#include "c64out/network_ending.h"
#include "c64out/output_settings.h"
#include "c64out/program_check.h"
#include "c64out/short_path.h"
#include "c64out/template_error.h"
#include "c64out/text_lines.h"
#include "c64out/vice_folder.h"
#include "crunch/crunch.h"
#include "files/backups.h"
#include "files/save_bitmap.h"
#include "optimise/packing.h"

namespace kelvo::c64out {
namespace {

// The line in decrush.tas which says that it is for our own cruncher.
constexpr std::string_view kUnpacksCrush = "; Unpacks what crush packs.";

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

// Through the ordinary save, with its signature, backup and snapshot, but of a copy: the picture in memory keeps its
// file, its unsaved work and the order of its colours, and the dialogs their folder.
void SavePicture(const BuildJob& job) {
  const BuildSurroundings& with = job.With();
  files::Document copy = job.Picture();
  app::NoProgress nobody_watches;
  optimise::OptimizeForPacking(copy.picture, nobody_watches);
  Remove(job.Files().picture);  // what an earlier build left is no work of anybody's
  const std::string dialogs_folder = with.settings.Read(files::kFilePath);
  const std::string trouble = files::SaveBitmap(copy, job.Files().picture, with);
  with.settings.Write(files::kFilePath, dialogs_folder);
  if (!trouble.empty()) with.log.Write("modVICEandCodenet_BuildCompoPic: " + trouble);
}

void FillViewer(const BuildJob& job) {
  const WorkFiles& files = job.Files();
  FillTemplate(job.System("bmpshow.src"), files.viewer_half_filled,
               {"[bitmap]", PathInTemplate(ShortPath(files.picture)), job.Marks()});
  FillTemplate(files.viewer_half_filled, files.viewer_source,
               {"[screencolor]", app::ToHex(job.Picture().picture.BackgroundColour.Number()), job.Marks()});
  Remove(files.viewer_half_filled);
}

// The saved picture stays behind on purpose: only here.
void RequireInterpreter(const BuildJob& job) {
  if (job.With().runner.CanRun()) return;
  job.With().messages.Warn("Can't find CMD.EXE");
  Remove(job.Files().viewer_source);
  job.Print("--> [err 908]");
  throw BuildGivenUp();
}

// Assembles the filled template `source`; what is wrong in it is told in terms of `from`, the user's own.
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

void AssembleViewer(const BuildJob& job) {
  const WorkFiles& files = job.Files();
  Assemble(job, job.System("bmpshow.src"), files.viewer_source, ".tmp", files.viewer_object, ".obj");
}

// A tool that says that all is well may have left half a file. What our own cruncher packs for our own depacker can be
// looked at; another's is theirs.
bool IsPackedForOurs(const BuildJob& job) {
  return ReadText(job.System("decrush.tas")).find(kUnpacksCrush) != std::string::npos;
}

void RequirePacked(const app::Bytes& object, const app::Bytes& packed) {
  app::Bytes unpacked;
  try {
    unpacked = crunch::Decrunch(packed);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(std::string("crush: ") + error.what());
  }
  if (unpacked != object) throw std::runtime_error("crush: the packed file does not hold what was to be packed");
}

void RequireWholeProgram(const app::Bytes& program, const app::Bytes& packed) {
  const std::span<const std::uint8_t> data = std::span(packed).subspan(1);  // the layout is told in the code
  if (data.size() > program.size() || !std::ranges::equal(data, std::span(program).last(data.size()))) {
    throw std::runtime_error("tass: the program does not end with the packed picture");
  }
}

app::Bytes BytesOf(const std::filesystem::path& file) {
  return app::ReadWholeFile(file, app::kMostBytesToCopy);
}

void Crush(const BuildJob& job) {
  const WorkFiles& files = job.Files();
  const std::string object = ShortPath(files.viewer_object);
  job.Make(files.viewer_packed, job.System(ToolName("crush")), {"6", object, WithEnding(object, ".obj", ".pak")});
  if (IsPackedForOurs(job)) RequirePacked(BytesOf(files.viewer_object), BytesOf(files.viewer_packed));
  Remove(files.viewer_object);
  Remove(files.picture);
}

void AddDepacker(const BuildJob& job) {
  const WorkFiles& files = job.Files();
  FillTemplate(job.System("decrush.tas"), files.depacker_source,
               {"[packedfile]", PathInTemplate(ShortPath(files.viewer_packed)), job.Marks()});
  Assemble(job, job.System("decrush.tas"), files.depacker_source, "decrush.tmp", files.program, "bmpshow.prg");
  if (IsPackedForOurs(job)) RequireWholeProgram(BytesOf(files.program), BytesOf(files.viewer_packed));
  Remove(files.viewer_packed);
}

// A program to be started by RUN loads to $0801, and has no more bytes than a C64's memory.
bool IsProgram(const std::filesystem::path& file) {
  constexpr std::uintmax_t kLoadAddressBytes = 2;
  const std::uintmax_t size = app::FileSize(file);
  std::ifstream stream(file, std::ios::binary);
  return size > kLoadAddressBytes && size <= kLoadAddressBytes + kMemorySize && stream.get() == 0x01 &&
         stream.get() == 0x08;
}

// A user's own viewer may well show something else, or need what only a C64 with its ROMs has; and a user's own tools
// may make something that is not started by RUN, which is not tried.
void Check(const BuildJob& job) {
  if (!job.IsOn(kCheckPrograms) || !IsProgram(job.Files().program)) return;
  const ProgramFinding finding =
      TryProgram(BytesOf(job.Files().program), job.Picture().picture, job.Choice().ViaCodenet);
  switch (finding.state) {
    case ProgramState::kShowsPicture:
      return;
    case ProgramState::kShowsOther:
      return job.Print("--> Note: on a C64 this does not show the picture; " + finding.why + ".");
    case ProgramState::kCannotBeJudged:
      return job.Print("--> Note: not tried on a C64; " + finding.why + ".");
    case ProgramState::kCrashes:
      throw std::runtime_error("The program crashes on a C64: " + finding.why);
  }
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
  const std::filesystem::path prg = job.BesidePicture(".prg");
  KeepForeignFile(job, prg);
  app::CopyWholeFile(job.Files().program, prg);
  job.Print("--> PRG complete.");
}

void SendProgram(const BuildJob& job) {
  EndOverNetwork(job);
  // An older program beside the picture goes and is not replaced, on purpose: it no longer is what the C64 shows.
  const std::filesystem::path prg = job.BesidePicture(".prg");
  KeepForeignFile(job, prg);
  Remove(prg);
}

std::optional<ToolCommand> End(const BuildJob& job) {
  if (!job.Choice().MakePrg) return EndWithDisk(job);
  job.Choice().ViaCodenet ? SendProgram(job) : KeepProgram(job);
  return std::nullopt;
}

std::optional<ToolCommand> Build(const BuildJob& job) {
  Begin(job);
  job.Print("--> Compiling source");
  SavePicture(job);
  FillViewer(job);
  RequireInterpreter(job);
  AssembleViewer(job);
  job.Print("--> Crushing source");
  Crush(job);
  job.Print("--> Adding depacker");
  AddDepacker(job);
  Check(job);
  auto emulator = End(job);
  Remove(job.Files().program);
  return emulator;
}

// A build that fails leaves no work files; one that is given up leaves what it has, on purpose.
std::optional<ToolCommand> BuildOrCleanUp(const BuildJob& job) {
  try {
    return Build(job);
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

BuildResult BuildCompoPic(const files::Document& document, const CompoPicChoice& choice,
                          const BuildSurroundings& with) {
  BuildResult result{};
  result.outcome = OutcomeOf(with, [&] {
    const BuildJob job(document, choice, with);
    result.emulator = BuildOrCleanUp(job);
    if (!choice.ViaCodenet) result.made = job.BesidePicture(choice.MakePrg ? ".prg" : ".d64");
  });
  return result;
}

BuildOutcome ShowInEmulator(const ToolCommand& emulator, const BuildSurroundings& with) {
  return OutcomeOf(with, [&] { RequireSuccess(emulator, with.runner.ShowAndWait(emulator)); });
}

}  // namespace kelvo::c64out
