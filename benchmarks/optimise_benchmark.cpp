// The background pass, against copying the bitmap.
#include <benchmark/benchmark.h>

#include <cstring>

#include "goals.h"
#include "optimise/background_colour.h"
#include "support/pictures.h"

namespace kelvo::optimise {
namespace {

const bench::GoalRegistration kGoals{{"BackgroundPass", "BitmapCopy", 10, 50}};

void BitmapCopy(benchmark::State& state) {
  const model::PictureImage from = support::RandomPicture(1);
  model::PictureImage to;
  for (auto _ : state) {
    std::memcpy(to.Bitmap.data(), from.Bitmap.data(), model::PictureImage::kBitmapBytes);
    benchmark::DoNotOptimize(to.Bitmap.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BitmapCopy);

void BackgroundPass(benchmark::State& state) {
  model::PictureImage picture = support::RandomPicture(1);
  app::NoProgress none;
  for (auto _ : state) {
    OptimizeBackgroundColor(picture, none, [](int) {});
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BackgroundPass);

}  // namespace
}  // namespace kelvo::optimise
