#include "c64out/build_animation.h"

#include <stdexcept>

#include "app/whole_file.h"
#include "c64out/animation_check.h"
#include "c64out/build_steps.h"
#include "c64out/fill_template.h"
#include "c64out/output_settings.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {
namespace {

constexpr const char* kPlayer = "animplay.src";

void RequireReady(const Release& release) {
  const std::string refusal = Refusal(release);
  if (!refusal.empty()) throw std::runtime_error(refusal);
}

void FillPlayer(const BuildJob& job, const Release& release) {
  const WorkFiles& files = job.Files();
  app::WriteOwnFile(files.animation, release.plan.memory);
  FillTemplate(job.System(kPlayer), files.player_source,
               {"[animation]", PathInTemplate(ShortPath(files.animation)), job.Marks()});
}

void AssemblePlayer(const BuildJob& job) {
  const WorkFiles& files = job.Files();
  Assemble(job, job.System(kPlayer), files.player_source, "animplay.tmp", files.program, "bmpshow.prg");
  Remove(files.animation);
}

void Check(const BuildJob& job, const Release& release) {
  if (!job.IsOn(kCheckPrograms) || !IsProgram(job.Files().program)) return;
  TellFinding(job, TryAnimation(BytesOf(job.Files().program), release, job.Choice().ViaCodenet), "play the animation");
}

}  // namespace

BuildResult BuildAnimation(const Release& release, const CompoPicChoice& choice, const BuildSurroundings& with) {
  const BuildJob job({release.animation.folder, release.animation.name}, choice, with);
  const auto make = [&] {
    RequireReady(release);
    job.Print("--> Compiling source");
    FillPlayer(job, release);
    RequireInterpreter(job, job.Files().player_source);
    AssemblePlayer(job);
    Check(job, release);
  };
  return RunBuild(job, {make});
}

}  // namespace kelvo::c64out
