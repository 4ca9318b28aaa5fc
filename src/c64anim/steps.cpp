#include "c64anim/steps.h"

namespace kelvo::c64anim {
namespace {

class StepRow {
 public:
  explicit StepRow(std::size_t no_change) : no_change_(no_change) {}

  void Put(int fields, std::size_t change) {
    for (; fields > kMostFields; fields -= kMostFields) steps_.push_back({kMostFields, no_change_});
    steps_.push_back({fields, change});
  }
  std::vector<Step> Taken() { return std::move(steps_); }

 private:
  std::size_t no_change_;
  std::vector<Step> steps_;
};

}  // namespace

std::vector<Step> StepsOf(std::span<const int> fields, Playing playing) {
  const std::size_t frames = fields.size();
  StepRow row(frames + 1);
  row.Put(1, 0);
  for (std::size_t frame = 1; frame < frames; ++frame) row.Put(fields[frame - 1], frame);
  if (frames > 1 && playing == Playing::kRound) row.Put(fields[frames - 1], frames);
  if (playing == Playing::kToAndFro) {
    for (std::size_t frame = frames - 1; frame > 0; --frame) row.Put(fields[frame], frame);
  }
  return row.Taken();
}

std::size_t NextRound(std::span<const Step> steps, Playing playing) {
  return playing == Playing::kOnce || steps.size() == 1 ? 0 : 1;
}

}  // namespace kelvo::c64anim
