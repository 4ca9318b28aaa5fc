// The pictures that the full view and the zoom window show, checked pixel by pixel against the rules.
#include <gtest/gtest.h>

#include "app/progress.h"
#include "model/full_view.h"
#include "model/palette.h"
#include "model/pixel_colour.h"
#include "model/zoom_border.h"
#include "model/zoom_view.h"
#include "support/pictures.h"

namespace kelvo::model {
namespace {

class CountingProgress final : public app::Progress {
 public:
  void Begin(int last_value) override { last = last_value; }
  void Advance(int value) override { values.push_back(value); }
  void End() override { ended = true; }
  int last = 0;
  std::vector<int> values;
  bool ended = false;
};

std::uint32_t ColourAt(const PictureImage& picture, int x, int y) {
  return SurfaceColour(GetPixelData(picture, x, y).colour);
}

int WrongFullViewPixels(const PictureImage& picture, const Surface& surface) {
  int wrong = 0;
  for (int y = 0; y < kFullViewHeight; ++y) {
    for (int x = 0; x < kFullViewWidth; ++x) wrong += surface.At(x, y) != ColourAt(picture, x / 2 + 1, y + 1);
  }
  return wrong;
}

TEST(FullView, ShowsEveryPixelTwoWideAndToldAfterEachRow) {
  PictureImage picture = support::RandomPicture(1);
  for (std::size_t i = 1; i < 4000; i += 5) picture.Bitmap[i] = std::array{0x00, 0xFF, 0xAA, 0x55}[i % 4];
  Surface surface(kFullViewWidth, kFullViewHeight);
  CountingProgress progress;
  DrawPicture(picture, surface, progress);
  EXPECT_EQ(WrongFullViewPixels(picture, surface), 0);
  EXPECT_EQ(progress.last, 24);
  EXPECT_EQ(progress.values.size(), 25U);
  EXPECT_EQ(progress.values.back(), 24);
  EXPECT_TRUE(progress.ended);
}

TEST(FullView, RedrawsCellsAndPixelsInPlace) {
  const PictureImage before = support::RandomPicture(2);
  PictureImage after = before;
  Surface surface(kFullViewWidth, kFullViewHeight);
  app::NoProgress none;
  DrawPicture(before, surface, none);
  for (const int cell : {1, 40, 41, 517, 1000}) {
    after.ColourMemory[static_cast<std::size_t>(cell)] ^= 5;
    after.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + 8)] ^= 0xFF;
    RedrawChar(after, cell, surface);
  }
  EXPECT_EQ(WrongFullViewPixels(after, surface), 0);
  after.Bitmap[static_cast<std::size_t>(LookUpPixel(77, 133).byte)] = 0b00'01'10'11;
  for (int x = 77; x <= 80; ++x) PutPixel(after, x, 133, surface);
  EXPECT_EQ(WrongFullViewPixels(after, surface), 0);
}

TEST(FullView, PointerReadsTheNearestPixelAndCell) {
  struct Case {
    int display_x, display_y, x, y, col, row;
  };
  for (const Case& c : {Case{0, 0, 1, 1, 1, 1},
                        {1, 0, 1, 1, 1, 1},
                        {2, 7, 2, 8, 1, 1},
                        {8, 8, 5, 9, 2, 2},
                        {319, 199, 160, 200, 40, 25},
                        {321, 201, 160, 200, 40, 25}}) {
    SCOPED_TRACE(testing::Message() << c.display_x << ", " << c.display_y);
    const FullViewPointer pointer = PointAtFullView(c.display_x, c.display_y);
    EXPECT_EQ(pointer.x, c.x);
    EXPECT_EQ(pointer.y, c.y);
    EXPECT_EQ(pointer.col, c.col);
    EXPECT_EQ(pointer.row, c.row);
  }
  for (int display_x = 0; display_x < kFullViewWidth; ++display_x) {
    EXPECT_EQ(PointAtFullView(display_x, 0).x, display_x / 2 + 1);
  }
}

TEST(ZoomArea, StaysInsideThePictureWhereverItIsSent) {
  ZoomArea area;
  area.CentreOn(3, 2);
  EXPECT_EQ(std::pair(area.ZoomOriginX(), area.ZoomOriginY()), std::pair(0, 0));
  area.CentreOn(20, 12);
  EXPECT_EQ(std::pair(area.ZoomOriginX(), area.ZoomOriginY()), std::pair(80, 16));
  area.SetMagnification(8);
  EXPECT_EQ(std::pair(area.ZoomOriginX(), area.ZoomOriginY()), std::pair(0, 0));
  area.CentreOn(40, 25);
  EXPECT_EQ(std::pair(area.ZoomOriginX(), area.ZoomOriginY()), std::pair(240, 128));
  area.Move(ZoomMove::kRight, ZoomStep::kCell);
  area.Move(ZoomMove::kDown, ZoomStep::kScreen);
  EXPECT_EQ(std::pair(area.ZoomOriginX(), area.ZoomOriginY()), std::pair(240, 128));
  area.Move(ZoomMove::kLeft, ZoomStep::kScreen);
  area.Move(ZoomMove::kPageUp, ZoomStep::kCell);
  EXPECT_EQ(std::pair(area.ZoomOriginX(), area.ZoomOriginY()), std::pair(160, 56));
  area.Move(ZoomMove::kRowStart, ZoomStep::kCell);
  EXPECT_EQ(area.ZoomOriginX(), 0);
  area.SetMagnification(7);
  EXPECT_EQ(area.Magnification(), 4);
}

TEST(ZoomView, ShowsEachPixelAsABoxUnderTheGrid) {
  const PictureImage picture = support::RandomPicture(3);
  const ZoomGrid grid{C64Colour::FromByte(9)};
  for (const int magnification : {4, 8}) {
    ZoomArea area;
    area.SetMagnification(magnification);
    area.CentreOn(25, 14);
    Surface surface(kZoomSurfaceWidth, kZoomSurfaceHeight);
    DrawCapturePic(picture, area, grid, surface);
    int wrong = 0, grid_pixels = 0;
    for (int y = 0; y < ZoomArea::kHeight; ++y) {
      for (int x = 0; x < ZoomArea::kWidth; ++x) {
        const int sx = x + ZoomArea::kBorder, sy = y + ZoomArea::kBorder;
        const PixelPoint point = *area.VisiblePixelAt(sx, sy);
        const int side = 8 * magnification;
        if (x % side == 0 || y % side == 0) {
          grid_pixels += surface.At(sx, sy) == SurfaceColour(grid.colour);
        } else if (x % area.BoxWidth() != 0 && y % area.BoxHeight() != 0) {
          wrong += surface.At(sx, sy) != ColourAt(picture, point.x, point.y);
        }
      }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(grid_pixels, area.CellsWide() * ZoomArea::kHeight + area.CellsHigh() * ZoomArea::kWidth -
                               area.CellsWide() * area.CellsHigh());
  }
}

TEST(ZoomView, OneCellOrOnePixelDrawnAnewEqualsTheWholeDrawnAnew) {
  const PictureImage before = support::RandomPicture(4);
  PictureImage after = before;
  const ZoomGrid grid{C64Colour::FromByte(3)};
  for (const int magnification : {4, 8}) {
    ZoomArea area;
    area.SetMagnification(magnification);
    area.CentreOn(30, 20);
    Surface patched(kZoomSurfaceWidth, kZoomSurfaceHeight), whole = patched;
    DrawCapturePic(before, area, grid, patched);
    for (int cell = 1; cell <= 1000; cell += 7) {
      after.ScreenMemory[static_cast<std::size_t>(cell)] ^= 0x35;
      RedrawZoomChar(after, cell, area, grid, patched);
    }
    for (int y = 1; y <= 200; y += 3) {
      for (int x = 1; x <= 160; x += 3) {
        const PixelPlace place = LookUpPixel(x, y);
        std::uint8_t& byte = after.Bitmap[static_cast<std::size_t>(place.byte)];
        byte = WithPairAt(byte, place.position, BitPair::k10);
        PutZoomPixel(after, x, y, area, grid, patched);
      }
    }
    DrawCapturePic(after, area, grid, whole);
    EXPECT_TRUE(std::equal(whole.Row(0), whole.Row(0) + kZoomSurfaceWidth * kZoomSurfaceHeight, patched.Row(0)));
  }
}

TEST(ZoomView, PointerOnTheBorderIsOnNoPixel) {
  ZoomArea area;
  EXPECT_EQ(area.VisiblePixelAt(7, 8), std::nullopt);
  EXPECT_EQ(area.VisiblePixelAt(8, 8), (PixelPoint{1, 1}));
  EXPECT_EQ(area.VisiblePixelAt(647, 583), (PixelPoint{80, 144}));
  EXPECT_EQ(area.VisiblePixelAt(648, 583), std::nullopt);
  EXPECT_EQ(area.PixelAt(0, 0), (PixelPoint{0, -1}));
}

TEST(ZoomBorder, FlashesFromDarkToBrightAndBack) {
  ZoomBorderColour border;
  EXPECT_FALSE(border.Tick());
  border.Set(ZoomBorder::kFlash);
  std::vector<int> colours;
  for (int tick = 0; tick < 10; ++tick, border.Tick()) colours.push_back(border.Colour().Number());
  EXPECT_EQ(colours, (std::vector{0, 11, 12, 15, 7, 1, 7, 15, 12, 11}));
  EXPECT_EQ(border.Colour().Number(), 0);
}

}  // namespace
}  // namespace kelvo::model
