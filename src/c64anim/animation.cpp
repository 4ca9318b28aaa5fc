#include "c64anim/animation.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>

namespace kelvo::c64anim {
namespace {

// A step of the player: for how long the frame before is shown, and which changes are made then.
struct Step {
  int fields;
  std::size_t change;
};

std::vector<Step> StepsOf(std::span<const int> fields, Playing playing) {
  std::vector<Step> steps;
  const std::size_t frames = fields.size();
  for (std::size_t change = 0; change + 1 < frames; ++change) steps.push_back({fields[change], change});
  if (frames == 1 || playing == Playing::kOnce) return steps;
  if (playing == Playing::kRound) {
    steps.push_back({fields[frames - 1], frames - 1});
    return steps;
  }
  for (std::size_t frame = frames - 1; frame > 0; --frame) steps.push_back({fields[frame], frame - 1});
  return steps;
}

struct Area {
  int begin, end;
};

// The memory of an animation while it is filled: steps, then changes where there is room for them.
class Memory {
 public:
  explicit Memory(std::size_t steps)
      : free_{Area{kAnimationStart + static_cast<int>(steps) * kStepBytes, kColours},
              Area{kBehindBitmap, kAnimationEnd}} {
    if (free_[0].begin > free_[0].end) throw std::runtime_error("The animation has too many frames.");
  }

  // Where `bytes` are now; empty when there is no room.
  std::optional<int> Place(std::span<const std::uint8_t> bytes) {
    const int size = static_cast<int>(bytes.size());
    for (auto& [begin, end] : free_) {
      if (end - begin < size) continue;
      Put(begin, bytes);
      begin += size;
      return begin - size;
    }
    return std::nullopt;
  }
  void Put(int address, std::span<const std::uint8_t> bytes) {
    std::copy(bytes.begin(), bytes.end(), bytes_.begin() + (address - kAnimationStart));
  }
  void PutStep(std::size_t index, int fields, int address) {
    const std::array<int, kStepBytes> step{fields, address & 0xFF, address >> 8};
    std::copy(step.begin(), step.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(index * kStepBytes));
  }
  void PutPicture(const Cells& cells, model::C64Colour background) {
    for (int cell = 0; cell < model::PictureImage::kCells; ++cell) {
      const CellBytes& from = cells[static_cast<std::size_t>(cell)];
      Put(kBitmap + cell * 8, from.lines);
      Put(kScreen + cell, {&from.screen, 1});
      Put(kColours + cell, {&from.colour, 1});
    }
    const std::uint8_t colour = background.Byte();
    Put(kBackground, {&colour, 1});
  }
  // Up to the end of what is used.
  Bytes Used() const { return {bytes_.begin(), bytes_.begin() + (free_[1].begin - kAnimationStart)}; }

 private:
  std::array<Area, 2> free_;
  Bytes bytes_ = Bytes(kAnimationEnd - kAnimationStart);
};

ChangeCost CostOf(std::span<const ChangedSpan> spans) {
  ChangeCost cost{.pace = PaceOf(spans)};
  for (const ChangedSpan& span : spans) cost.cells += span.cells;
  return cost;
}

}  // namespace

void Animation::Add(const model::PictureImage& frame, int fields) {
  const std::string name = "Frame " + std::to_string(Frames() + 1);
  if (fields < 1 || fields > kMostFields) throw std::runtime_error(name + " cannot be shown for so long.");
  if (fields_.empty()) background_ = frame.BackgroundColour;
  if (frame.BackgroundColour != background_) throw std::runtime_error(name + " has another background color.");
  const Cells cells = steady_.Next(frame);
  if (fields_.empty()) {
    first_ = cells;
  } else {
    changes_.push_back(ChangesBetween(last_, cells));
  }
  last_ = cells;
  fields_.push_back(fields);
}

AnimationPlan Animation::Plan(Playing playing) const {
  if (fields_.empty()) throw std::runtime_error("The animation has no frames.");
  std::vector<Bytes> all = changes_;
  if (playing == Playing::kRound && Frames() > 1) all.push_back(ChangesBetween(last_, first_));
  const std::vector<Step> steps = StepsOf(fields_, playing);
  Memory memory(steps.size() + 1);

  AnimationPlan plan;
  std::vector<std::optional<int>> places;  // of changes in memory
  Cells cells = first_;
  for (auto one = all.begin(); one != all.end(); ++one) {
    const auto same = std::find(all.begin(), one, *one) - all.begin();
    const bool is_new = same == one - all.begin();
    places.push_back(is_new ? memory.Place(*one) : places[static_cast<std::size_t>(same)]);
    plan.changes.push_back(CostOf(MakeChanges(*one, cells)));
    ChangeCost& cost = plan.changes.back();
    cost.to_frame = static_cast<int>(places.size()) % Frames() + 1;
    cost.bytes = is_new ? static_cast<int>(one->size()) : 0;
    cost.fits = places.back().has_value();
  }
  if (!std::all_of(plan.changes.begin(), plan.changes.end(), [](const ChangeCost& cost) { return cost.fits; })) {
    return plan;
  }
  for (std::size_t i = 0; i < steps.size(); ++i) memory.PutStep(i, steps[i].fields, *places[steps[i].change]);
  const bool goes_on = playing != Playing::kOnce && !steps.empty();
  memory.PutStep(steps.size(), 0, goes_on ? kAnimationStart : 0);
  memory.PutPicture(first_, background_);
  plan.memory = memory.Used();
  return plan;
}

}  // namespace kelvo::c64anim
