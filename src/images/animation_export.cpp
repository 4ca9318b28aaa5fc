#include "images/animation_export.h"

#include <optional>

#include "anim/frame_times.h"
#include "anim/playing_order.h"
#include "app/durable_file.h"
#include "app/held_file.h"
#include "app/path_text.h"
#include "app/temporary_name.h"
#include "app/whole_file.h"
#include "files/load_picture.h"
#include "images/animation_gif.h"

namespace kelvo::images {
namespace {

namespace fs = std::filesystem;

constexpr int kHundredthsInField = 100 / anim::kFieldsPerSecond;

QImage ImageOfFrame(const anim::AnimationFrame& frame, const AnimationLook& look) {
  const auto picture = files::LoadPicture(frame.path, files::kOwnType, {}, look.reading);
  return ImageOf(picture, look.palette, look.size, look.scale);
}

void Require(const std::error_code& error, const fs::path& file) {
  if (error) throw app::FileError(app::TextFromPath(file) + ": it cannot be written: " + error.message());
}

// Holds the folder, so that nobody sweeps it away; what programs that were killed left goes before.
std::optional<app::HeldFile> MakeFolder(const fs::path& made, const fs::path& wanted_in) {
  app::SweepTemporaryFiles(wanted_in);
  std::error_code error;
  fs::create_directory(made, error);
  Require(error, wanted_in);
  return app::HeldFile::Hold(made);
}

}  // namespace

app::Bytes GifOf(const anim::AnimationFrames& animation, int rate, anim::Playing playing, const AnimationLook& look,
                 app::Progress& progress) {
  const std::vector<int> fields = anim::FieldsOf(animation, rate);
  const std::vector<std::size_t> order = anim::OrderOfRound(fields.size(), playing);
  const app::ProgressScope scope(progress, static_cast<int>(order.size()));
  AnimationGif gif(playing == anim::Playing::kOnce ? GifLoop::kOnce : GifLoop::kForEver);
  int done = 0;
  for (const std::size_t frame : order) {
    progress.Advance(done++);
    gif.Add(ImageOfFrame(animation.frames[frame], look), fields[frame] * kHundredthsInField);
  }
  return gif.Finished();
}

fs::path PngFileOf(const anim::AnimationFrame& frame, const fs::path& folder) {
  return (folder / frame.path.filename()).replace_extension(".png");
}

void WritePngs(const anim::AnimationFrames& animation, const AnimationLook& look, const fs::path& folder,
               app::Progress& progress) {
  const app::ProgressScope scope(progress, static_cast<int>(animation.frames.size()));
  const app::PassingPlace made(folder);
  const auto held = MakeFolder(made.Path(), folder);
  int done = 0;
  for (const anim::AnimationFrame& frame : animation.frames) {
    progress.Advance(done++);
    app::WriteWholeFile(PngFileOf(frame, made.Path()), PngOf(ImageOfFrame(frame, look)), app::Flush::kLater);
  }
  for (const anim::AnimationFrame& frame : animation.frames) {
    std::error_code error;
    fs::rename(PngFileOf(frame, made.Path()), PngFileOf(frame, folder), error);
    Require(error, PngFileOf(frame, folder));
  }
}

}  // namespace kelvo::images
