// Where windows stand when they are arranged, on areas and with letters of every size.
#include "ui/windows/window_layout.h"

#include <gtest/gtest.h>

namespace kelvo::ui {
namespace {

constexpr ZoomSizes kZoom{{8, 25}, {16, 16}, {32, 32}};
const std::vector<QSize> kColumn{{332, 222}, {332, 84}, {332, 54}, {332, 151}, {332, 80}};

TEST(WindowLayout, NoWindowCoversAnotherAndAllAreSeenWhereThereIsRoom) {
  for (const int letters : {1, 2}) {
    for (const int view : {1, 2, 3}) {
      std::vector<QSize> column = kColumn;
      for (QSize& size : column) size *= letters;
      column.front() *= view;
      for (const QSize area : {QSize(640, 300), {1012, 620}, {1300, 700}, {1900, 950}, {3800, 2100}}) {
        for (const int below : {0, 150}) {
          const Arrangement places = Arrange(area, kZoom, column, below);
          std::vector<QRect> all = places.column;
          all.push_back(places.zoom);
          const QSize needed = Arrange({0, 0}, kZoom, column, below).Needed();
          const bool has_room = area.width() >= needed.width() && area.height() >= needed.height();
          for (std::size_t i = 0; i < all.size(); ++i) {
            EXPECT_GE(all[i].left(), kWindowGap);
            EXPECT_GE(all[i].top(), kWindowGap);
            for (std::size_t j = 0; j < i; ++j) {
              EXPECT_FALSE(all[i].intersects(all[j])) << area.width() << ' ' << i << j;
            }
          }
          EXPECT_TRUE(!has_room || QRect(QPoint(), area).contains(QRect({0, 0}, places.Needed()))) << area.width();
          EXPECT_TRUE(!has_room || places.zoom.bottom() + below < area.height());
        }
      }
    }
  }
}

TEST(WindowLayout, TheZoomWindowTakesWhatThereIsUpToTheWholePicture) {
  EXPECT_EQ(Arrange({1012, 624}, kZoom, kColumn, 0).zoom.size(), QSize(640 + 24, 576 + 41));
  EXPECT_EQ(Arrange({3800, 2100}, kZoom, kColumn, 0).zoom.size(), QSize(1280 + 24, 800 + 41));
  EXPECT_EQ(Arrange({300, 200}, kZoom, kColumn, 0).zoom.size(), QSize(256 + 24, 256 + 41));
}

TEST(WindowLayout, WhatIsOutOfReachComesBackAndAFreePlaceIsFree) {
  const QRect area(100, 50, 800, 600);
  EXPECT_EQ(IntoReach({5000, -900, 300, 200}, area), QRect(600, 50, 300, 200));
  EXPECT_EQ(IntoReach({5000, 5000, 2000, 200}, area), QRect(100, 450, 2000, 200));  // its corner is there
  const std::array<QRect, 2> taken{{{100, 50, 500, 400}, {600, 50, 300, 500}}};
  const QRect place = FreePlace(area, {300, 90}, taken);
  EXPECT_EQ(place.size(), QSize(300, 90));
  EXPECT_TRUE(area.contains(place) && !place.intersects(taken[0]) && !place.intersects(taken[1]));
  EXPECT_TRUE(FreePlace(area, {600, 200}, taken).isNull());
}

}  // namespace
}  // namespace kelvo::ui
