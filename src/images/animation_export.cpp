#include "images/animation_export.h"

#include "anim/frame_times.h"
#include "anim/playing_order.h"
#include "files/load_picture.h"
#include "images/animation_gif.h"

namespace kelvo::images {
namespace {

constexpr int kHundredthsInField = 100 / anim::kFieldsPerSecond;

}  // namespace

QImage ImageOfFrame(const anim::AnimationFrame& frame, const AnimationLook& look) {
  const auto picture = files::LoadPicture(frame.path, files::kOwnType, {}, look.reading);
  return ImageOf(picture, look.palette, look.size, look.scale);
}

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

}  // namespace kelvo::images
