// Fills and plots, against a plain fill of as many bytes.
#include <benchmark/benchmark.h>

#include <array>
#include <vector>

#include "editing/flood_fill.h"
#include "editing/pixel_plot.h"
#include "goals.h"
#include "model/full_view.h"
#include "model/zoom_view.h"
#include "support/mazes.h"
#include "support/pictures.h"

namespace kelvo::editing {
namespace {

const bench::GoalRegistration kGoals{
    {"BlankFill", "ScanlineFill", 40, 0},
    {"BlankFill", "", 0, 2000},
    {"MazeFill", "BlankFill", 3, 0},
    {"TreeFill", "BlankFill", 3, 0},
    {"PlotWithRedraws", "", 0, 10},
    {"FillOfFortyPercent", "FillOfFourPercent", 12, 0},
    {"BlankFill", "FillOfFortyPercent", 3, 0},
};

class NobodyWatches final : public model::PictureViews, public app::ProcessEvents {
 public:
  void PixelChanged(int, int) override {}
  void CellChanged(int) override {}
  void PictureChanged() override {}
  void Process() override {}
};

// The reference: a fill of a plain byte array, line by line, without any rule.
class ByteFill {
 public:
  static constexpr int kWidth = 160, kHeight = 200;

  void Fill(int x, int y, std::uint8_t value) {
    const std::uint8_t target = At(x, y);
    seeds_.assign(1, {x, y});
    while (!seeds_.empty()) {
      const auto [seed_x, seed_y] = seeds_.back();
      seeds_.pop_back();
      if (At(seed_x, seed_y) != target) continue;
      int left = seed_x, right = seed_x;
      while (left > 0 && At(left - 1, seed_y) == target) --left;
      while (right < kWidth - 1 && At(right + 1, seed_y) == target) ++right;
      for (int column = left; column <= right; ++column) At(column, seed_y) = value;
      if (seed_y > 0) Seed(left, right, seed_y - 1, target);
      if (seed_y < kHeight - 1) Seed(left, right, seed_y + 1, target);
    }
  }

 private:
  std::uint8_t& At(int x, int y) { return bytes_[static_cast<std::size_t>(y * kWidth + x)]; }

  void Seed(int left, int right, int y, std::uint8_t target) {
    for (int x = left; x <= right; ++x) {
      if (At(x, y) == target && (x == left || At(x - 1, y) != target)) seeds_.emplace_back(x, y);
    }
  }

  std::array<std::uint8_t, static_cast<std::size_t>(kWidth* kHeight)> bytes_{};
  std::vector<std::pair<int, int>> seeds_;
};

void ScanlineFill(benchmark::State& state) {
  ByteFill fill;
  std::uint8_t value = 0;
  for (auto _ : state) {
    fill.Fill(80, 100, ++value);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(ScanlineFill);

void Fill(benchmark::State& state, const model::PictureImage& before, int x = 1, int y = 1) {
  model::PictureImage picture = before;
  NobodyWatches nobody;
  FloodFill fill(picture, nobody, nobody);
  for (auto _ : state) {
    picture = before;
    try {
      fill.Fill(x, y, support::Colour(5), FullCellInFill::kKeep);
    } catch (const FillQueueFull&) {
      state.SetLabel("full queue");
    }
    benchmark::ClobberMemory();
  }
}

void BlankFill(benchmark::State& state) {
  Fill(state, {});
}
BENCHMARK(BlankFill);

// A field of `rows` rows of cells above a wall: what a fill costs as it grows.
void FieldFill(benchmark::State& state, int rows) {
  model::PictureImage picture;
  for (int column = 0; column < model::PictureImage::kCellsWide; ++column) {
    support::SetCell(picture, rows * model::PictureImage::kCellsWide + column + 1,
                     {255, 255, 255, 255, 255, 255, 255, 255}, 7, 0, 0);
  }
  Fill(state, picture);
}

void FillOfFourPercent(benchmark::State& state) {
  FieldFill(state, 1);
}
BENCHMARK(FillOfFourPercent);

void FillOfFortyPercent(benchmark::State& state) {
  FieldFill(state, 10);
}
BENCHMARK(FillOfFortyPercent);

void MazeFill(benchmark::State& state) {
  Fill(state, support::Maze());
}
BENCHMARK(MazeFill);

// The worst there is: the fill runs to and fro until its queue is full.
void TreeFill(benchmark::State& state) {
  Fill(state, support::Tree(), 80, 100);
}
BENCHMARK(TreeFill);

void PlotWithRedraws(benchmark::State& state) {
  model::PictureImage picture = support::RandomPicture(1);
  model::Surface full_view(model::kFullViewWidth, model::kFullViewHeight);
  model::Surface zoom(model::kZoomSurfaceWidth, model::kZoomSurfaceHeight);
  const model::ZoomArea area;
  int step = 0;
  for (auto _ : state) {
    const int x = step % 80 + 1, y = step % 144 + 1;
    PlotPixel(picture, x, y, support::Colour(step), FullCell::kRecolour);
    const int cell = model::LookUpPixel(x, y).cell;
    model::RedrawChar(picture, cell, full_view);
    model::RedrawZoomChar(picture, cell, area, {}, zoom);
    benchmark::ClobberMemory();
    ++step;
  }
}
BENCHMARK(PlotWithRedraws);

}  // namespace
}  // namespace kelvo::editing
