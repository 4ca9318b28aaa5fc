// What a folder of many frames costs.
#include <benchmark/benchmark.h>

#include "anim/frame_row.h"
#include "files/picture_format.h"
#include "goals.h"
#include "support/files.h"

namespace kelvo::anim {
namespace {

const bench::GoalRegistration kGoals{
    {"Frames100", "Frames10", 15, 0},
    {"Frames1000", "Frames100", 15, 0},
};

void Frames(benchmark::State& state, int count) {
  const support::TempFolder folder;
  const FrameNames names({.folder = (folder.Path() / "").string(), .prefix = "anim"});
  for (int number = 1; number <= count; ++number) support::WriteFile(names.Path(number), app::Bytes(10050));
  for (auto _ : state) benchmark::DoNotOptimize(FrameRow(names).Readable());
}

void Frames10(benchmark::State& state) {
  Frames(state, 10);
}
BENCHMARK(Frames10);

void Frames100(benchmark::State& state) {
  Frames(state, 100);
}
BENCHMARK(Frames100);

void Frames1000(benchmark::State& state) {
  Frames(state, 1000);
}
BENCHMARK(Frames1000);

}  // namespace
}  // namespace kelvo::anim
