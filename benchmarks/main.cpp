// Runs the benchmarks and reports each goal. What Google Benchmark itself says goes to the error stream.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <iostream>
#include <map>

#include "goals.h"
#include "row.h"

namespace kelvo::bench {

std::vector<Goal>& Goals() {
  static std::vector<Goal> goals;
  return goals;
}

namespace {

// What waits for others asks for real time. All else counts the processor's, which other programs take no part of.
double SecondsOf(const benchmark::BenchmarkReporter::Run& run) {
  return run.run_name.time_type.empty() ? run.cpu_accumulated_time : run.real_accumulated_time;
}

// Keeps the best time of each benchmark: what the machine can do when nothing else disturbs it.
class GoalReporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Aggregate || run.iterations == 0) continue;
      const double microseconds = SecondsOf(run) / static_cast<double>(run.iterations) * 1e6;
      const auto [best, is_new] = best_.emplace(run.run_name.function_name, microseconds);
      if (!is_new) best->second = std::min(best->second, microseconds);
    }
  }

  // True when every goal that was measured is met.
  bool ReportGoals() const {
    bool all_met = true;
    for (const Goal& goal : Goals()) {
      if (best_.count(goal.operation) != 0 && (goal.reference.empty() || best_.count(goal.reference) != 0)) {
        all_met &= ReportGoal(goal);
      }
    }
    return all_met;
  }

 private:
  bool ReportGoal(const Goal& goal) const {
    const double reference = goal.reference.empty() ? 0 : best_.at(goal.reference);
    return Report({goal.operation, best_.at(goal.operation), "us", goal.reference, reference,
                   goal.factor * reference + goal.plus_microseconds});
  }

  std::map<std::string, double> best_;
};

}  // namespace
}  // namespace kelvo::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  kelvo::bench::GoalReporter reporter;
  reporter.SetOutputStream(&std::cerr);
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return reporter.ReportGoals() ? 0 : 1;
}
