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

// Where the image of a frame goes in `folder`: anim0001.png for anim0001.kvp.
std::filesystem::path PngFileOf(const anim::AnimationFrame& frame, const std::filesystem::path& folder);

// A PNG for each frame, in place of what has its name. All of them are made before the first comes to its place, so
// that what fails on the way, and what `progress` throws, leaves the folder as it was. Throws the same as GifOf().
void WritePngs(const anim::AnimationFrames& animation, const AnimationLook& look, const std::filesystem::path& folder,
               app::Progress& progress);

}  // namespace kelvo::images
