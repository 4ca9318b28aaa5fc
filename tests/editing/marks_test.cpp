// The points of lines and circles, which slot a colour takes in a cell, and what a plot writes.
#include <gtest/gtest.h>

#include <cmath>

#include "editing/cell_slots.h"
#include "editing/flood_fill.h"
#include "editing/pixel_plot.h"
#include "editing/set_data.h"
#include "editing/shapes.h"
#include "support/pictures.h"
#include "support/program.h"

namespace kelvo::editing {
namespace {

using model::BitPair;
using model::PictureImage;
using support::Colour;
using support::kAllSlots;
using support::PictureWithCell;

class NoEvents final : public app::ProcessEvents {
 public:
  void Process() override {}
};

constexpr int kCell = 42, kX = 5, kY = 9;  // cell 42 begins at x 5, y 9

TEST(SetData, WritesInsideThePictureAlone) {
  PictureImage picture;
  for (const int byte : {8242, -1}) {
    EXPECT_THROW(SetData(picture, byte, 1, BitPair::k01, 1, Colour(1)), std::out_of_range);
  }
}

TEST(CellSlots, LeastUsedCountsOneByteEarly) {
  using Lines = std::array<std::uint8_t, 8>;
  for (const auto& [what, byte_before, lines, expected] : {
           std::tuple{"all equal: %11 first", 0, Lines{}, BitPair::k11},
           {"%11 used: %10 before %01", 0, Lines{0xC0}, BitPair::k10},
           {"7, 3, 3", 0, Lines{0xFF, 0xFC, 0xA8, 0x54}, BitPair::k10},
           {"5, 5, 9", 0, Lines{0xFF, 0xC0, 0xAA, 0x80, 0x55, 0x55, 0x40}, BitPair::k11},
           {"the bottom line does not count", 0, Lines{0xE0, 0, 0, 0, 0, 0, 0, 0x55}, BitPair::k01},
           {"the byte before does", 0x55, Lines{0xE0}, BitPair::k11},
       }) {
    SCOPED_TRACE(what);
    PictureImage picture = PictureWithCell(kCell, lines, 1, 2, 3, 0);
    picture.Bitmap[static_cast<std::size_t>(model::BaseOfCell(kCell))] = static_cast<std::uint8_t>(byte_before);
    EXPECT_EQ(GetLeastUsedCol(picture, model::BaseOfCell(kCell)), expected);
  }
  PictureImage first_cell;
  first_cell.Bitmap[0] = 0xFF;
  EXPECT_EQ(GetLeastUsedCol(first_cell, 0), BitPair::k10);
}

// A slot for colour 5 in a cell of `lines` with own colours %11 %10 %01 on a background, for fills and for plots.
struct SlotCase {
  const char* what;
  std::array<std::uint8_t, 8> lines;
  int c11, c10, c01, background;
  std::optional<BitPair> fill, plot;
};

const SlotCase kSlotCases[] = {
    {"own %11", kAllSlots, 5, 5, 5, 0, BitPair::k11, BitPair::k11},
    {"own %11 with a high nibble from a file, which stays", kAllSlots, 0xF5, 2, 3, 0, BitPair::k11, BitPair::k11},
    {"own %10", kAllSlots, 1, 5, 5, 0, BitPair::k10, BitPair::k10},
    {"own %01", kAllSlots, 1, 2, 5, 0, BitPair::k01, BitPair::k01},
    {"background alone", kAllSlots, 1, 2, 3, 5, BitPair::k00, BitPair::k00},
    {"background and own: a fill takes the slot, a plot the background", kAllSlots, 5, 2, 3, 5, BitPair::k11,
     BitPair::k00},
    {"nothing used", {}, 1, 2, 3, 0, BitPair::k11, BitPair::k11},
    {"%11 used", {0x03}, 1, 2, 3, 0, BitPair::k10, BitPair::k10},
    {"%11 and %10 used", {0x0B}, 1, 2, 3, 0, BitPair::k01, BitPair::k01},
    {"full, but %10 shows the background", kAllSlots, 1, 0, 3, 0, BitPair::k10, BitPair::k10},
    {"%11 shows the background, %01 is unused", {0x0B}, 0, 2, 3, 0, BitPair::k01, BitPair::k11},
    {"full", kAllSlots, 1, 2, 3, 0, std::nullopt, std::nullopt},
};

TEST(CellSlots, AColourTakesItsSlotInTheOrderOfFillsOrOfPlots) {
  for (const SlotCase& c : kSlotCases) {
    SCOPED_TRACE(c.what);
    const PictureImage before = PictureWithCell(kCell, c.lines, c.c11, c.c10, c.c01, c.background);
    EXPECT_EQ(GetColorBinForChar(before, Colour(5), kCell, model::BaseOfCell(kCell)), c.fill);
    PictureImage after = before;
    const PlotResult result = PlotPixel(after, kX + 1, kY + 4, Colour(5), FullCell::kRefuse);
    EXPECT_EQ(result, c.plot ? PlotResult::kPlotted : PlotResult::kCellFull);
    const auto colour = [&c](BitPair pair, int now) { return c.plot == pair && now % 16 != 5 ? 5 : now; };
    PictureImage expected = PictureWithCell(kCell, c.lines, colour(BitPair::k11, c.c11), colour(BitPair::k10, c.c10),
                                            colour(BitPair::k01, c.c01), c.background);
    std::uint8_t& byte = expected.Bitmap[static_cast<std::size_t>(model::BaseOfCell(kCell)) + 5];
    if (c.plot) byte = model::WithPairAt(byte, 2, *c.plot);
    EXPECT_EQ(after, expected);
  }
}

TEST(PlotPixel, RecoloursTheClickedSlotOfAFullCell) {
  const PictureImage before = PictureWithCell(kCell, kAllSlots, 1, 2, 3, 0);
  PictureImage after = before;
  EXPECT_EQ(PlotPixel(after, kX + 2, kY, Colour(5), FullCell::kRecolour), PlotResult::kRecoloured);  // a %10 pixel
  EXPECT_EQ(after, PictureWithCell(kCell, kAllSlots, 1, 5, 3, 0));
  after = before;
  EXPECT_EQ(PlotPixel(after, kX, kY, Colour(5), FullCell::kRecolour), PlotResult::kRecoloured);  // a background pixel
  EXPECT_EQ(after, before);
  EXPECT_EQ(PlotPixel(after, kX, kY, Colour(0), FullCell::kRefuse), PlotResult::kPlotted);  // always room for that
  for (const auto& [x, y] : {std::pair{0, 1}, {161, 1}, {1, 0}, {1, 201}, {-5, -5}}) {
    EXPECT_EQ(PlotPixel(after, x, y, Colour(5), FullCell::kRecolour), PlotResult::kOutside);
  }
  EXPECT_EQ(after, before);
}

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

// With the real fill, of every radius that a press can give, in the middle and cut off by the picture's edges.
TEST(Circle, ClosedKeepsAFillInside) {
  support::RecordingViews views;
  NoEvents events;
  PictureImage picture;
  FloodFill fill(picture, views, events);
  for (const model::PixelPoint& centre : {model::PixelPoint{80, 100}, {3, 2}, {150, 199}}) {
    for (int radius = 1; radius <= 189; ++radius) {
      SCOPED_TRACE(testing::Message() << centre.x << ", " << centre.y << ": " << radius);
      picture = {};
      const Points closed = DrawCircle(centre, radius, CircleOutline::kClosed);
      for (const auto& point : closed) PlotPixel(picture, point.x, point.y, Colour(1), FullCell::kRefuse);
      for (const auto& point : DrawCircle(centre, radius)) {
        ASSERT_NE(std::find(closed.begin(), closed.end(), point), closed.end());
      }
      fill.Fill(centre.x, centre.y, Colour(2), FullCellInFill::kKeep);
      ASSERT_EQ(support::ColourAt(picture, centre.x, centre.y), 2);
      for (int place = 0; place < 160 * 200; ++place) {
        const int x = place % 160 + 1, y = place / 160 + 1, across = std::abs(x - centre.x);
        if (support::ColourAt(picture, x, y) == 0) continue;
        const double down = std::abs(y - centre.y) / 2.0;
        ASSERT_LT(std::hypot(across, down), radius + 1.5) << x << ", " << y;
      }
    }
  }
}

}  // namespace
}  // namespace kelvo::editing
