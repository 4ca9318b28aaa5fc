// What is told of an animation before it is built, from what its changes cost.
#include "c64out/animation_release.h"

#include <gtest/gtest.h>

#include <array>

namespace kelvo::c64out {
namespace {

using Row = std::array<int, 6>;  // frame, cells, bytes, fields, torn fields, whether it is slow

std::vector<Row> Told(const Release& release) {
  std::vector<Row> told;
  for (const ReleaseRow& row : RowsOf(release)) {
    told.push_back({row.frame, row.cells, row.bytes, row.fields, row.torn_fields, row.is_slow ? 1 : 0});
  }
  return told;
}

// The first change needs its frame before to stay for three fields; of the second, nine fields show both frames.
TEST(AnimationRelease, TellsForEachFrameHowLongItMustStay) {
  Release release;
  release.animation.frames = {{2, {}, 1}, {4, {}, 1}, {7, {}, 2}};
  release.fields = {2, 4, 8};
  release.plan.first_bytes = 900;
  release.plan.changes = {{.to_frame = 2, .cells = 10, .bytes = 100, .pace = {.fields = 3}, .fits = true},
                          {.to_frame = 3, .cells = 20, .bytes = 200, .pace = {.torn_fields = 9}, .fits = true}};
  const std::vector<Row> there{{2, 0, 900, 3, 0, 1}, {4, 10, 100, 1, 0, 0}, {7, 20, 200, 9, 9, 1}};

  release.wishes.playing = anim::Playing::kOnce;
  EXPECT_EQ(Told(release), there);
  EXPECT_EQ(FastestRate(release), 11);  // two turns of the last frame take nine fields

  release.wishes.playing = anim::Playing::kToAndFro;
  EXPECT_EQ(Told(release), (std::vector<Row>{{2, 0, 900, 3, 0, 1}, {4, 10, 100, 9, 9, 1}, {7, 20, 200, 9, 9, 1}}));
  EXPECT_EQ(FastestRate(release), 5);

  release.wishes.playing = anim::Playing::kRound;
  release.plan.changes.push_back({.cells = 30, .bytes = 300, .pace = {.fields = 2, .torn_fields = 1}, .fits = true});
  EXPECT_EQ(
      Told(release),
      (std::vector<Row>{{2, 0, 900, 3, 0, 1}, {4, 10, 100, 1, 0, 0}, {7, 20, 200, 9, 9, 1}, {2, 30, 300, 1, 1, 0}}));
}

}  // namespace
}  // namespace kelvo::c64out
