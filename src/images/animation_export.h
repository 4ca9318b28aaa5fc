// An animation as image files.
#pragma once

#include "anim/anim_settings.h"
#include "anim/animation_frames.h"
#include "app/bytes.h"
#include "app/long_work.h"
#include "files/palette_file.h"
#include "files/picture_format.h"
#include "images/picture_png.h"

namespace kelvo::images {

struct AnimationLook {
  files::Palette palette;
  ImageSize size = ImageSize::kScreen;
  int scale = 1;  // 1..kLargestScale
  files::Reading reading = files::Reading::kDocumented;
};

// A GIF with the times that a C64 has at `rate` turns a second; one that is not played once has no end. Progress counts
// frames. Throws app::FileError for a frame that cannot be read any more.
app::Bytes GifOf(const anim::AnimationFrames& animation, int rate, anim::Playing playing, const AnimationLook& look,
                 app::Progress& progress);

// One frame's image.
QImage ImageOfFrame(const anim::AnimationFrame& frame, const AnimationLook& look);

}  // namespace kelvo::images
