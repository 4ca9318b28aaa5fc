// The frames of an animation, made ready to become one program for the C64, and what there is to say before.
#pragma once

#include <string>
#include <vector>

#include "anim/anim_settings.h"
#include "anim/animation_frames.h"
#include "app/long_work.h"
#include "c64anim/animation.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::c64out {

struct ReleaseWishes {
  int rate = 10;  // turns a second, anim::kSlowestRate..kFastestRate
  anim::Playing playing = anim::Playing::kRound;
  bool changes_background = false;  // at frames that have another one; else they are refused
  files::Reading reading = files::Reading::kDocumented;
};

struct Release {
  ReleaseWishes wishes;
  anim::AnimationFrames animation;
  std::vector<int> fields;  // by frame, as the next ones
  std::vector<model::C64Colour> backgrounds{};
  std::vector<model::PictureImage> first_pictures{};  // as many as a build tries
  c64anim::AnimationPlan plan{};
};

// Reads the frames. Progress counts them. Throws app::FileError for one that cannot be read any more, and what
// c64anim::Animation does.
Release MakeRelease(const anim::AnimationFrames& animation, const ReleaseWishes& wishes, app::Progress& progress);

// A frame, and the changes that lead to it from the one before; the first one is drawn from nothing. Of an animation
// that plays round and round, the first frame comes once more behind the last.
struct ReleaseRow {
  int frame = 0;             // its number
  int cells = 0, bytes = 0;  // that change
  int fields = 1;            // for which it must at least be shown
  int torn_fields = 0;       // of these, that show the frame before, too: it comes in from above
  bool is_slow = false;      // there are not so many fields
  bool fits = true;          // into memory
};
std::vector<ReleaseRow> RowsOf(const Release& release);

// What all of it has in the C64's memory; at most c64anim::Animation::kRoom where it fits.
int BytesOf(const Release& release);

// How many frames from the first on fit.
int FramesThatFit(const Release& release);
// Turns a second that the slowest frame allows, up to anim::kFastestRate; 0 where one takes more than a second.
int FastestRate(const Release& release);

// Frames whose background is not that of the first.
bool HasOtherBackgrounds(const Release& release);
// Why no program can be made of it, in a line; empty when one can.
std::string Refusal(const Release& release);
// What would help where it is refused or too slow, in a line; else empty.
std::string Advice(const Release& release);
// What there is to know besides: a line each.
std::vector<std::string> Notes(const Release& release);

}  // namespace kelvo::c64out
