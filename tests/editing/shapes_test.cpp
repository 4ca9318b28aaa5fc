// The points of lines and circles.
#include <gtest/gtest.h>

#include <algorithm>

#include "editing/circle.h"
#include "editing/line.h"

namespace kelvo::editing {
namespace {

TEST(Line, LeavesItsEndToTheNextSegment) {
  EXPECT_EQ(DrawLine({10, 10}, {13, 10}), (Points{{10, 10}, {11, 10}, {12, 10}}));
  EXPECT_EQ(DrawLine({5, 5}, {5, 5}), Points());
  EXPECT_EQ(DrawLine({1, 1}, {4, 2}), (Points{{1, 1}, {2, 1}, {3, 2}}));
  EXPECT_EQ(DrawLine({4, 2}, {1, 1}), (Points{{4, 2}, {3, 2}, {2, 1}}));
  EXPECT_EQ(DrawLine({1, 1}, {2, 5}), (Points{{1, 1}, {1, 2}, {2, 3}, {2, 4}}));
  EXPECT_EQ(DrawLine({2, 1}, {3, 3}), (Points{{2, 1}, {3, 2}}));  // the half rounds upwards, not to the even neighbour
}

TEST(Circle, RadiusIsMeasuredInColumns) {
  using Case = std::pair<model::PixelPoint, int>;
  for (const auto& [point, radius] : {Case{{80, 110}, 5},
                                      {{83, 104}, 4},
                                      {{80, 100}, 0},
                                      {{72, 100}, 8},
                                      {{80, 105}, 2},
                                      {{80, 107}, 4},
                                      {{77, 92}, 5}}) {
    EXPECT_EQ(CircleRadius({80, 100}, point), radius) << point.x << ", " << point.y;
  }
}

TEST(Circle, SamplesColumnsInsideThePicture) {
  EXPECT_EQ(DrawCircle({80, 100}, 0), (Points{{80, 100}, {80, 100}}));
  EXPECT_EQ(DrawCircle({80, 100}, 1), (Points{{79, 100}, {79, 100}, {80, 102}, {80, 98}, {81, 100}, {81, 100}}));
  const Points six = DrawCircle({80, 100}, 6);
  EXPECT_NE(std::find(six.begin(), six.end(), model::PixelPoint{84, 110}), six.end());  // 4.47 counts as a half
  for (const model::PixelPoint& centre : {model::PixelPoint{2, 3}, {155, 195}}) {
    for (const model::PixelPoint& point : DrawCircle(centre, 20)) {
      EXPECT_TRUE(point.x >= 1 && point.x <= 160 && point.y <= 200) << point.x << ", " << point.y;
    }
  }
}

}  // namespace
}  // namespace kelvo::editing
