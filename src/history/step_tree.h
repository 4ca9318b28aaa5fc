// The steps of a session as a tree: each but the first follows another, and knows what changed since that one.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "history/delta.h"

namespace kelvo::history {

// Steps are numbered as they were made, from 0 on: so a step's number is larger than that of the one before it.
using StepId = int;

class StepTree {
 public:
  // Step 0 shows `first`.
  explicit StepTree(const State& first) : first_(first), nodes_(1) {}

  int Count() const { return static_cast<int>(nodes_.size()); }
  StepId Before(StepId step) const { return At(step).before; }  // 0 for step 0
  // The step that forward leads to: the one that was made or visited last of those that follow; `step` itself where
  // none does.
  StepId After(StepId step) const { return At(step).after; }
  const State& First() const { return first_; }
  std::span<const std::uint8_t> DeltaOf(StepId step) const { return At(step).delta; }

  // A new step behind `before`; forward leads there from now on.
  StepId Add(StepId before, app::Bytes delta);
  // Forward leads to `step` from every step before it.
  void LeadTo(StepId step);
  // What `step` shows changes by `delta`; no other step does.
  void Amend(StepId step, std::span<const std::uint8_t> delta);

  std::size_t BytesUsed() const;

 private:
  struct Node {
    StepId before = 0, after = 0;
    app::Bytes delta;  // from the step before
  };
  const Node& At(StepId step) const { return nodes_.at(static_cast<std::size_t>(step)); }
  Node& At(StepId step) { return nodes_.at(static_cast<std::size_t>(step)); }

  State first_;
  std::vector<Node> nodes_;
};

// A place in the tree with what it shows. Walking costs the more the longer the way is.
class Walker {
 public:
  // `tree` outlives it.
  explicit Walker(const StepTree& tree) : tree_(tree), state_(tree.First()) {}

  StepId At() const { return at_; }
  const State& Shown() const { return state_; }
  void GoTo(StepId step);
  // The tree is another one.
  void StartAfresh() { at_ = 0, state_ = tree_.First(); }
  // `step` was amended by `delta`.
  void Amended(StepId step, std::span<const std::uint8_t> delta);

 private:
  const StepTree& tree_;
  StepId at_ = 0;
  State state_;
};

}  // namespace kelvo::history
