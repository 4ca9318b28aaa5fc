// Drawing the picture, against copying as many pixels.
#include <benchmark/benchmark.h>

#include <cstring>

#include "app/long_work.h"
#include "goals.h"
#include "model/full_view.h"
#include "model/zoom_view.h"
#include "support/pictures.h"

namespace kelvo::model {
namespace {

const bench::GoalRegistration kGoals{
    {"FullRedraw", "", 0, 160},  // a hundredth of a display frame: what cannot be felt, with room for slow machines
    {"ZoomRedraw4", "ZoomViewCopy", 4, 0},
    {"ZoomRedraw8", "ZoomViewCopy", 4, 0},
    {"CellRedraw", "FullRedraw", 1.0 / 200, 1},
};

constexpr ZoomGrid kGrid{};

void ZoomViewCopy(benchmark::State& state) {
  const Surface from(ZoomArea::kWidth, ZoomArea::kHeight);
  Surface to(ZoomArea::kWidth, ZoomArea::kHeight);
  for (auto _ : state) {
    std::memcpy(to.Row(0), from.Row(0), std::size_t{ZoomArea::kWidth} * ZoomArea::kHeight * 4);
    benchmark::DoNotOptimize(to.Row(0));
    benchmark::ClobberMemory();
  }
}

BENCHMARK(ZoomViewCopy);

// Random bytes: the picture that takes longest to draw.
void FullRedraw(benchmark::State& state) {
  const PictureImage picture = support::RandomPicture(1);
  Surface surface(kFullViewWidth, kFullViewHeight);
  app::NoProgress none;
  for (auto _ : state) {
    DrawPicture(picture, surface, none);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(FullRedraw);

void CellRedraw(benchmark::State& state) {
  const PictureImage picture = support::RandomPicture(1);
  Surface surface(kFullViewWidth, kFullViewHeight);
  int cell = 0;
  for (auto _ : state) {
    RedrawChar(picture, cell % PictureImage::kCells + 1, surface);
    cell += 37;
    benchmark::ClobberMemory();
  }
}
BENCHMARK(CellRedraw);

void ZoomRedraw(benchmark::State& state, int magnification) {
  const PictureImage picture = support::RandomPicture(1);
  Surface surface(kZoomSurfaceWidth, kZoomSurfaceHeight);
  ZoomArea area;
  area.SetMagnification(magnification);
  for (auto _ : state) {
    DrawCapturePic(picture, area, kGrid, surface);
    benchmark::ClobberMemory();
  }
}

void ZoomRedraw4(benchmark::State& state) {
  ZoomRedraw(state, 4);
}
BENCHMARK(ZoomRedraw4);

void ZoomRedraw8(benchmark::State& state) {
  ZoomRedraw(state, 8);
}
BENCHMARK(ZoomRedraw8);

}  // namespace
}  // namespace kelvo::model
