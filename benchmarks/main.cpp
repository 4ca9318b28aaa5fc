// Runs the benchmarks and prints, for each goal: operation, time, reference, ratio, goal, met or not.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>

#include "goals.h"

namespace kelvo::bench {

std::vector<Goal>& Goals() {
  static std::vector<Goal> goals;
  return goals;
}

namespace {

// Keeps the best time of each benchmark: what the machine can do when nothing else disturbs it.
class GoalReporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Aggregate || run.iterations == 0) continue;
      const double microseconds = run.real_accumulated_time / static_cast<double>(run.iterations) * 1e6;
      const auto [best, is_new] = best_.emplace(run.run_name.function_name, microseconds);
      if (!is_new) best->second = std::min(best->second, microseconds);
    }
  }

  // True when every goal that was measured is met.
  bool PrintGoals() const {
    bool all_met = true;
    std::printf("\n%-28s %12s  %-28s %12s %8s %22s\n", "operation", "time us", "reference", "time us", "ratio", "goal");
    for (const Goal& goal : Goals()) {
      if (best_.count(goal.operation) != 0 && (goal.reference.empty() || best_.count(goal.reference) != 0)) {
        all_met &= PrintGoal(goal);
      }
    }
    return all_met;
  }

 private:
  bool PrintGoal(const Goal& goal) const {
    const double time = best_.at(goal.operation);
    const double reference = goal.reference.empty() ? 0 : best_.at(goal.reference);
    const bool met = time <= goal.factor * reference + goal.plus_microseconds;
    std::printf("%-28s %12.3f  %-28s %12.3f %8.3f %9.3f x + %4.0f us  %s\n", goal.operation.c_str(), time,
                goal.reference.c_str(), reference, reference > 0 ? time / reference : 0.0, goal.factor,
                goal.plus_microseconds, met ? "met" : "NOT MET");
    return met;
  }

  std::map<std::string, double> best_;
};

}  // namespace
}  // namespace kelvo::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  kelvo::bench::GoalReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.PrintGoals() ? 0 : 1;
}
