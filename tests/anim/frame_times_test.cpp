// Times of frames on a C64, whose beam draws 50 fields a second: they are as long as they should be, however many there
// are.
#include "anim/frame_times.h"

#include <gtest/gtest.h>

#include <numeric>

#include "anim/anim_settings.h"

namespace kelvo::anim {
namespace {

TEST(FrameTimes, AddUpAtEveryRate) {
  for (int rate = kSlowestRate; rate <= kFastestRate; ++rate) {
    SCOPED_TRACE(rate);
    std::vector<int> turns(static_cast<std::size_t>(40 * rate), 1);
    for (std::size_t i = 0; i < turns.size(); i += 7) turns[i] = 3;
    const std::vector<int> fields = FieldsOf(turns, rate);
    const int all = std::accumulate(turns.begin(), turns.end(), 0);
    EXPECT_NEAR(std::accumulate(fields.begin(), fields.end(), 0), all * 50.0 / rate, 0.5);
    for (std::size_t i = 0; i < turns.size(); ++i) ASSERT_NEAR(fields[i], turns[i] * 50.0 / rate, 1) << i;
  }
}

}  // namespace
}  // namespace kelvo::anim
