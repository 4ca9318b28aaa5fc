// A whole animation: its frames in, the bytes for the player and what they cost out.
//
//   Animation animation;
//   for (const auto& frame : frames) animation.Add(frame, 2);
//   const AnimationPlan plan = animation.Plan(Playing::kRound);
//   if (plan.Fits()) WriteWholeFile(path, plan.memory);   // what animplay.src takes
#pragma once

#include "app/long_work.h"
#include "c64anim/animation_format.h"
#include "c64anim/cells.h"
#include "c64anim/changes.h"

namespace kelvo::c64anim {

enum class Playing { kOnce, kRound, kToAndFro };

struct Pace {
  int fields = 1;             // that the frame before must at least be shown
  bool is_overtaken = false;  // fields show parts of both frames
  int torn_fields = 0;        // at the most so many of those that the frame is shown
};

// The changes that lead from a frame to the next, or from the last to the first.
struct ChangeCost {
  int to_frame = 1;
  int cells = 0;  // that change
  int bytes = 0;  // 0 when a change before has the same
  Pace pace{};
  bool is_packed = false;
  bool fits = false;  // into what memory is left
};

struct AnimationPlan {
  int first_bytes = 0;  // of the first frame
  std::vector<ChangeCost> changes;
  Bytes memory;  // from kAnimationStart on; empty when something does not fit

  bool Fits() const { return !memory.empty(); }
};

class Animation {
 public:
  // What all frames and steps can take.
  static constexpr int kRoom =
      kScreen - kAnimationStart + (kHighEnd - kHigh) + (kAnimationEnd - kBehindBitmap);  // bytes

  // `fields` (1 or more) of the beam is how long the frame is shown. Throws std::runtime_error for another number.
  void Add(const model::PictureImage& frame, int fields);

  int Frames() const { return static_cast<int>(fields_.size()); }
  // Throws std::runtime_error when there is no frame, or more than there can be steps for.
  AnimationPlan Plan(Playing playing) const;
  // The same with progress, which counts changes; what it throws ends the work.
  AnimationPlan Plan(Playing playing, app::Progress& progress) const;

 private:
  SteadyCells steady_;
  FrameBytes first_, last_;
  std::vector<int> fields_;                 // by frame
  std::vector<std::vector<Span>> changes_;  // to each frame; to the first from nothing
};

}  // namespace kelvo::c64anim
