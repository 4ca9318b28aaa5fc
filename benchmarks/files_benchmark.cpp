// Reading and writing pictures without the disk, against copying as many bytes.
#include <benchmark/benchmark.h>

#include <cstring>

#include "files/picture_format.h"
#include "goals.h"
#include "support/files.h"
#include "support/pictures.h"

namespace kelvo::files {
namespace {

const bench::GoalRegistration kGoals{
    {"DecodePicture", "PictureCopy", 20, 20},
    {"EncodePicture", "PictureCopy", 20, 20},
};

constexpr std::size_t kFileSize = 10050;

void PictureCopy(benchmark::State& state) {
  const app::Bytes from = support::CountingBytes(kFileSize);
  app::Bytes to(kFileSize);
  for (auto _ : state) {
    std::memcpy(to.data(), from.data(), kFileSize);
    benchmark::DoNotOptimize(to.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(PictureCopy);

void DecodePicture(benchmark::State& state) {
  const app::Bytes bytes = support::CountingBytes(kFileSize);
  for (auto _ : state) benchmark::DoNotOptimize(Decode(FormatOf(kOwnType), bytes, {}));
}
BENCHMARK(DecodePicture);

void EncodePicture(benchmark::State& state) {
  const model::PictureImage picture = support::RandomPicture(1);
  for (auto _ : state) benchmark::DoNotOptimize(Encode(picture));
}
BENCHMARK(EncodePicture);

}  // namespace
}  // namespace kelvo::files
