#include "c64anim/animation.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "c64anim/placing.h"
#include "c64anim/steps.h"

namespace kelvo::c64anim {
namespace {

ChangeCost CostOf(const Placing::Place& place, bool is_new, const std::vector<Span>& spans) {
  const Race& race = place.written.race;
  ChangeCost cost{.pace = {place.fewest_fields, race.is_overtaken, race.is_overtaken ? FewestFields(race, 0) : 0},
                  .is_packed = place.written.is_packed,
                  .fits = place.address.has_value()};
  for (const Span& span : spans) cost.cells += span.cells;
  if (is_new) cost.bytes = place.written.size;
  return cost;
}

}  // namespace

void Animation::Add(const model::PictureImage& frame, int fields) {
  if (fields < 1) {
    throw std::runtime_error("Frame " + std::to_string(Frames() + 1) + " is to be shown for no time at all.");
  }
  const FrameBytes bytes = steady_.Next(frame);
  changes_.push_back(SpansBetween(last_, bytes));
  if (fields_.empty()) first_ = bytes;
  last_ = bytes;
  fields_.push_back(fields);
}

AnimationPlan Animation::Plan(Playing playing) const {
  app::NoProgress nobody;
  return Plan(playing, nobody);
}

AnimationPlan Animation::Plan(Playing playing, app::Progress& progress) const {
  if (fields_.empty()) throw std::runtime_error("The animation has no frames.");
  const std::vector<Step> steps = StepsOf(fields_, playing);
  std::vector<std::vector<Span>> changes = changes_;
  const bool is_round = playing == Playing::kRound && Frames() > 1;
  if (is_round) changes.push_back(SpansBetween(last_, first_));
  const std::size_t costing = changes.size();
  changes.resize(fields_.size() + 2);
  const Placing placing(changes, steps, NextRound(steps, playing), progress);

  AnimationPlan plan;
  plan.first_bytes = placing.Places().front().written.size;
  for (std::size_t change = 1; change < costing; ++change) {
    const Placing::Place& place = placing.Places()[change];
    plan.changes.push_back(CostOf(place, place.first_same == change, changes[change]));
    plan.changes.back().to_frame = static_cast<int>(change) % Frames() + 1;
  }
  const auto fits = [](const Placing::Place& place) { return place.address.has_value(); };
  if (std::ranges::all_of(placing.Places(), fits)) plan.memory = placing.File();
  return plan;
}

}  // namespace kelvo::c64anim
