// Where pixels lie in the bytes; the pictures that the full view and the zoom window show, another one shining through
// it, checked pixel by pixel against the rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <tuple>

#include "app/long_work.h"
#include "model/full_view.h"
#include "model/onion_skin.h"
#include "model/palette.h"
#include "model/pixel_colour.h"
#include "model/zoom_border.h"
#include "model/zoom_view.h"
#include "support/pictures.h"

namespace kelvo::model {
namespace {

TEST(PixelPlace, FollowsTheC64sOrderOfBytes) {
  for (const auto& [x, y, byte, position, cell] :
       {std::tuple{1, 1, 1, 1, 1}, {160, 200, 8000, 4, 1000}, {5, 1, 9, 1, 2}, {1, 9, 321, 1, 41}, {4, 8, 8, 4, 1}}) {
    const PixelPlace place = LookUpPixel(x, y);
    EXPECT_EQ(std::tuple(place.byte, place.position, place.cell), std::tuple(byte, position, cell)) << byte;
    EXPECT_EQ(CellOfByte(place.byte), cell);
    EXPECT_EQ(BaseOfCell(cell), place.base);
  }
  EXPECT_LT(LookUpPixel(1, 0).byte, 0);
  EXPECT_THROW(GetPixelData(PictureImage{}, 0, 1), std::out_of_range);
  EXPECT_THROW(GetPixelData(PictureImage{}, 1, 201), std::out_of_range);
}

TEST(PixelColour, ComesFromTheSlotThatTheBitPairNames) {
  PictureImage picture{.BackgroundColour = C64Colour::FromByte(14)};
  picture.Bitmap[1] = 0b11'10'01'00;
  picture.ScreenMemory[1] = 0x5A;
  picture.ColourMemory[1] = 0xF7;  // the high nibble is junk
  const int expected[] = {7, 10, 5, 14};
  for (int x = 1; x <= 4; ++x) {
    EXPECT_EQ(GetPixelData(picture, x, 1).colour.Number(), expected[x - 1]);
    EXPECT_EQ(GetPixelColour(picture, 0b11'10'01'00, x, 1).Number(), expected[x - 1]);
  }
  const DetachedCell detached{0, 0xF7, 0x5A};
  EXPECT_EQ(GetPixelColour(detached, 0b11'10'01'00, 1, picture.BackgroundColour).Number(), 0);  // taken whole: above 15
  EXPECT_EQ(GetPixelColour(detached, 0b11'10'01'00, 3, picture.BackgroundColour).Number(), 5);
}

class RecordingProgress final : public app::Progress {
 public:
  void Begin(int last) override { told.push_back(last); }
  void Advance(int value) override { told.push_back(value); }
  void End() override { told.push_back(-1); }
  std::vector<int> told;
};

constexpr ZoomGrid kGrid{C64Colour::FromByte(9)};

ZoomArea AreaAt(int magnification) {
  ZoomArea area;
  area.SetMagnification(magnification);
  area.CentreOn(25, 14);
  return area;
}

Surface Drawn(const PictureImage& picture, const ZoomArea& area) {
  Surface surface(kZoomSurfaceWidth, kZoomSurfaceHeight);
  DrawCapturePic(picture, area, kGrid, surface);
  return surface;
}

Surface DrawnThrough(const PictureImage& picture, const OnionSkin& skin, const ZoomArea& area) {
  Surface surface = Drawn(picture, area);
  MixOnionSkin(skin, area, surface);
  return surface;
}

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

TEST(FullView, ShowsEveryPixelTwoWideAndRedrawsInPlace) {
  PictureImage picture = support::RandomPicture(1);
  constexpr std::array<std::uint8_t, 4> kBytes{0x00, 0xFF, 0xAA, 0x55};
  for (std::size_t i = 1; i < 4000; i += 5) picture.Bitmap[i] = kBytes[i % 4];
  Surface surface(kFullViewWidth, kFullViewHeight);
  RecordingProgress progress;
  DrawPicture(picture, surface, progress);
  EXPECT_EQ(WrongFullViewPixels(picture, surface), 0);
  EXPECT_EQ(progress.told.size(), 27U);  // told after each row
  EXPECT_EQ(progress.told.front(), 24);
  EXPECT_EQ(progress.told.at(25), 24);
  EXPECT_EQ(progress.told.back(), -1);

  for (const int cell : {1, 40, 41, 517, 1000}) {
    picture.ColourMemory[static_cast<std::size_t>(cell)] ^= 5;
    picture.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + 8)] ^= 0xFF;
    RedrawChar(picture, cell, surface);
  }
  picture.Bitmap[static_cast<std::size_t>(LookUpPixel(77, 133).byte)] = 0b00'01'10'11;
  for (int x = 77; x <= 80; ++x) PutPixel(picture, x, 133, surface);
  EXPECT_EQ(WrongFullViewPixels(picture, surface), 0);
}

TEST(FullView, PointerReadsTheNearestPixelAndCell) {
  for (const auto& [display_x, display_y, x, y, col, row] :
       {std::tuple{0, 0, 1, 1, 1, 1}, {2, 7, 2, 8, 1, 1}, {8, 8, 5, 9, 2, 2}, {321, 201, 160, 200, 40, 25}}) {
    const FullViewPointer at = PointAtFullView(display_x, display_y);
    EXPECT_EQ(std::tuple(at.x, at.y, at.col, at.row), std::tuple(x, y, col, row)) << display_x;
  }
}

TEST(ZoomView, ShowsEachPixelAsABoxUnderTheGrid) {
  const PictureImage picture = support::RandomPicture(3);
  for (const int magnification : {4, 8}) {
    const ZoomArea area = AreaAt(magnification);
    const Surface surface = Drawn(picture, area);
    int wrong = 0;
    for (int y = 0; y < ZoomArea::kHeight; ++y) {
      for (int x = 0; x < ZoomArea::kWidth; ++x) {
        const int sx = x + ZoomArea::kBorder, sy = y + ZoomArea::kBorder, side = 8 * magnification;
        const PixelPoint point = *area.VisiblePixelAt(sx, sy);
        if (x % side == 0 || y % side == 0) {
          wrong += surface.At(sx, sy) != SurfaceColour(kGrid.colour);
        } else if (x % area.BoxWidth() != 0 && y % area.BoxHeight() != 0) {
          wrong += surface.At(sx, sy) != ColourAt(picture, point.x, point.y);
        }
      }
    }
    EXPECT_EQ(wrong, 0);
  }
}

TEST(OnionSkin, GivesOneToThreeQuartersToTheOtherPictures) {
  const PictureImage white{.BackgroundColour = C64Colour::FromByte(1)}, black;
  const ZoomArea area = AreaAt(4);
  const Rect box = area.PixelRect(100, 150);
  const auto mixed = [&](const PictureImage& picture, const OnionSkin& skin) {
    return DrawnThrough(picture, skin, area).At(box.x + 1, box.y + 1);
  };
  EXPECT_EQ(mixed(white, {{black}}), 0xFFC0C0C0U);
  EXPECT_EQ(mixed(black, {{white}}), 0xFF3F3F3FU);
  EXPECT_EQ(mixed(black, {{white}, 2}), 0xFF7F7F7FU);
  EXPECT_EQ(mixed(black, {{white}, 3}), 0xFFC0C0C0U);
  EXPECT_EQ(mixed(black, {{white, black}, 2}), 0xFF404040U);
  EXPECT_EQ(mixed(white, {{white, white}, 3}), 0xFFFFFFFFU);
  EXPECT_EQ(mixed(white, {}), 0xFFFFFFFFU);
}

TEST(ZoomView, OneCellOrOnePixelDrawnAnewWithItsOnionSkinEqualsTheWholeDrawnAnew) {
  const PictureImage before = support::RandomPicture(4);
  const OnionSkin other{{support::RandomPicture(2), support::RandomPicture(5)}, 3};
  for (const int magnification : {4, 8}) {
    PictureImage after = before;
    const ZoomArea area = AreaAt(magnification);
    Surface patched = DrawnThrough(before, other, area);
    for (int cell = 1; cell <= 1000; cell += 7) {
      after.ScreenMemory[static_cast<std::size_t>(cell)] ^= 0x35;
      RedrawZoomChar(after, cell, area, kGrid, patched);
      MixOnionSkinCell(other, cell, area, patched);
    }
    for (int y = 1; y <= 200; y += 3) {
      for (int x = 1; x <= 160; x += 3) {
        const PixelPlace place = LookUpPixel(x, y);
        std::uint8_t& byte = after.Bitmap[static_cast<std::size_t>(place.byte)];
        byte = WithPairAt(byte, place.position, BitPair::k10);
        PutZoomPixel(after, x, y, area, kGrid, patched);
        MixOnionSkinPixel(other, x, y, area, patched);
      }
    }
    const Surface whole = DrawnThrough(after, other, area);
    EXPECT_TRUE(std::equal(whole.Row(0), whole.Row(kZoomSurfaceHeight), patched.Row(0)));
  }
}

TEST(ZoomView, PointerOnTheBorderIsOnNoPixel) {
  ZoomArea area;
  EXPECT_EQ(area.VisiblePixelAt(7, 8), std::nullopt);
  EXPECT_EQ(area.VisiblePixelAt(8, 8), (PixelPoint{1, 1}));
  EXPECT_EQ(area.VisiblePixelAt(647, 583), (PixelPoint{80, 144}));
  EXPECT_EQ(area.VisiblePixelAt(648, 583), std::nullopt);
  EXPECT_EQ(area.PixelAt(0, 0), (PixelPoint{0, -1}));
  area.SetMagnification(7);  // from the settings
  EXPECT_EQ(area.Magnification(), 4);
}

// Scrolling ends where the picture does, whatever is visible; a click puts half of it before the cell.
TEST(ZoomView, MoreRoomShowsMoreUpToTheWholePicture) {
  struct Case {
    int magnification, room_width, room_height;
    int width, height;             // visible, in full-view pixels
    int far_x, far_y, on_x, on_y;  // the origin at the far end, and after a click on cell 21, 13
  };
  for (const Case& c : {Case{4, 640, 576, 160, 144, 160, 56, 88, 24}, Case{8, 640, 576, 80, 72, 240, 128, 128, 64},
                        Case{4, 999, 700, 248, 168, 72, 32, 40, 16}, Case{8, 999, 700, 120, 80, 200, 120, 104, 56},
                        Case{4, 5000, 5000, 320, 200, 0, 0, 0, 0}, Case{8, 1, -9, 8, 8, 312, 192, 160, 96}}) {
    ZoomArea area;
    area.SetMagnification(c.magnification);
    area.MoveTo(160, 56);
    area.SetRoom(c.room_width, c.room_height);
    EXPECT_EQ(std::tuple(area.VisibleWidth(), area.VisibleHeight()), std::tuple(c.width, c.height));
    EXPECT_LE(area.ZoomOriginX() + c.width, kFullViewWidth);
    EXPECT_LE(area.ZoomOriginY() + c.height, kFullViewHeight);
    area.MoveTo(9999, 9999);
    EXPECT_EQ(std::tuple(area.ZoomOriginX(), area.ZoomOriginY()), std::tuple(c.far_x, c.far_y));
    area.CentreOn(21, 13);
    EXPECT_EQ(std::tuple(area.ZoomOriginX(), area.ZoomOriginY()), std::tuple(c.on_x, c.on_y));
    Surface surface(area.SurfaceWidth(), area.SurfaceHeight());
    DrawCapturePic(support::RandomPicture(5), area, kGrid, surface);
    EXPECT_EQ(surface.At(ZoomArea::kBorder, ZoomArea::kBorder + 1), SurfaceColour(kGrid.colour));
  }
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
