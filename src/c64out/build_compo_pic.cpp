#include "c64out/build_compo_pic.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string>

#include "app/number_text.h"
#include "app/path_text.h"
#include "c64out/build_steps.h"
#include "c64out/fill_template.h"
#include "c64out/output_settings.h"
#include "c64out/program_check.h"
#include "c64out/short_path.h"
#include "c64out/text_lines.h"
#include "crunch/crunch.h"
#include "files/save_bitmap.h"
#include "optimise/packing.h"

namespace kelvo::c64out {
namespace {

// The line in decrush.tas which says that it is for our own cruncher.
constexpr std::string_view kUnpacksCrush = "; Unpacks what crush packs.";

// Through the ordinary save, with its signature, backup and snapshot, but of a copy: the picture in memory keeps its
// file, its unsaved work and the order of its colours, and the dialogs their folder.
void SavePicture(const BuildJob& job, const files::Document& document) {
  const BuildSurroundings& with = job.With();
  files::Document copy = document;
  app::NoProgress nobody_watches;
  optimise::OptimizeForPacking(copy.picture, nobody_watches);
  Remove(job.Files().picture);  // what an earlier build left is no work of anybody's
  const std::string dialogs_folder = with.settings.Read(files::kFilePath);
  const std::string trouble = files::SaveBitmap(copy, job.Files().picture, with);
  with.settings.Write(files::kFilePath, dialogs_folder);
  if (!trouble.empty()) with.log.Write("modVICEandCodenet_BuildCompoPic: " + trouble);
}

void FillViewer(const BuildJob& job, model::C64Colour background) {
  const WorkFiles& files = job.Files();
  FillTemplate(job.System("bmpshow.src"), files.viewer_half_filled,
               {"[bitmap]", PathInTemplate(ShortPath(files.picture)), job.Marks()});
  FillTemplate(files.viewer_half_filled, files.viewer_source,
               {"[screencolor]", app::ToHex(background.Number()), job.Marks()});
  Remove(files.viewer_half_filled);
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

// A user's own viewer may well show something else, or need what only a C64 with its ROMs has; and a user's own tools
// may make something that is not started by RUN, which is not tried.
void Check(const BuildJob& job, const model::PictureImage& picture) {
  if (!job.IsOn(kCheckPrograms) || !IsProgram(job.Files().program)) return;
  TellFinding(job, TryProgram(BytesOf(job.Files().program), picture, job.Choice().ViaCodenet), "show the picture");
}

// The picture's name without its extension: everything from the last "." on goes. A name without a "." gives an empty
// text, on purpose.
std::string BaseName(const std::string& name) {
  const auto dot = name.rfind('.');
  return dot == std::string::npos ? std::string() : name.substr(0, dot);
}

}  // namespace

BuildResult BuildCompoPic(const files::Document& document, const CompoPicChoice& choice,
                          const BuildSurroundings& with) {
  const files::CurrentFile& file = document.file;
  const BuildJob job({file.CurrentFilePath.parent_path(), BaseName(file.CurrentFileName)}, choice, with);
  const auto make = [&] {
    job.Print("--> Compiling source");
    SavePicture(job, document);
    FillViewer(job, document.picture.BackgroundColour);
    RequireInterpreter(job, job.Files().viewer_source);  // the saved picture stays behind on purpose: only here
    AssembleViewer(job);
    job.Print("--> Crushing source");
    Crush(job);
    job.Print("--> Adding depacker");
    AddDepacker(job);
    Check(job, document.picture);
  };
  // An older program goes and is not replaced, on purpose: it no longer is what the C64 shows.
  return RunBuild(job, {make, [&] { RemoveOlderProgram(job); }});
}

}  // namespace kelvo::c64out
