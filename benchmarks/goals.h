// Speed goals: each operation against a reference that is measured in the same run.
#pragma once

#include <string>
#include <vector>

namespace kelvo::bench {

// `operation` is to take at most `factor` times what `reference` takes, plus `plus_microseconds`. Both are names of
// benchmarks; an empty reference makes the goal an absolute one.
struct Goal {
  std::string operation, reference;
  double factor = 0, plus_microseconds = 0;
};

// All goals of the run. A file of benchmarks adds its own with a constant of type GoalRegistration.
std::vector<Goal>& Goals();

struct GoalRegistration {
  GoalRegistration(std::initializer_list<Goal> goals) { Goals().insert(Goals().end(), goals); }
};

}  // namespace kelvo::bench
