#include "history/step_tree.h"

#include <utility>

namespace kelvo::history {
namespace {

app::Bytes Joined(std::span<const std::uint8_t> one, std::span<const std::uint8_t> other) {
  State state{};
  Apply(one, state);
  Apply(other, state);
  return Difference({}, state);
}

}  // namespace

StepId StepTree::Add(StepId before, app::Bytes delta) {
  const StepId step = Count();
  nodes_.push_back({before, step, std::move(delta)});
  At(before).after = step;
  return step;
}

void StepTree::LeadTo(StepId step) {
  for (; step != 0; step = Before(step)) At(Before(step)).after = step;
}

void StepTree::Amend(StepId step, std::span<const std::uint8_t> delta) {
  if (step == 0) {
    Apply(delta, first_);
  } else {
    At(step).delta = Joined(At(step).delta, delta);
  }
  for (StepId other = step + 1; other < Count(); ++other) {
    if (Before(other) == step) At(other).delta = Joined(At(other).delta, delta);
  }
}

std::size_t StepTree::BytesUsed() const {
  std::size_t bytes = sizeof *this + nodes_.capacity() * sizeof(Node);
  for (const Node& node : nodes_) bytes += node.delta.capacity();
  return bytes;
}

void Walker::GoTo(StepId step) {
  std::vector<StepId> down;
  while (at_ != step) {
    if (at_ > step) {
      Apply(tree_.DeltaOf(at_), state_);
      at_ = tree_.Before(at_);
    } else {
      down.push_back(step);
      step = tree_.Before(step);
    }
  }
  for (; !down.empty(); down.pop_back()) {
    at_ = down.back();
    Apply(tree_.DeltaOf(at_), state_);
  }
}

void Walker::Amended(StepId step, std::span<const std::uint8_t> delta) {
  if (step == at_) Apply(delta, state_);
}

}  // namespace kelvo::history
