// Another picture shining through the zoomed one.
#include "model/onion_skin.h"

#include <gtest/gtest.h>

#include "model/palette.h"
#include "model/pixel_place.h"
#include "model/zoom_view.h"
#include "support/pictures.h"

namespace kelvo::model {
namespace {

constexpr ZoomGrid kGrid{C64Colour::FromByte(9)};

bool Same(const Surface& a, const Surface& b) {
  return std::equal(a.Row(0), a.Row(a.Height()), b.Row(0));
}

ZoomArea AreaAt(int magnification) {
  ZoomArea area;
  area.SetMagnification(magnification);
  area.CentreOn(30, 20);
  return area;
}

Surface DrawnWith(const PictureImage& picture, const PictureImage& other, const ZoomArea& area) {
  Surface surface(kZoomSurfaceWidth, kZoomSurfaceHeight);
  DrawCapturePic(picture, area, kGrid, surface);
  MixOnionSkin(other, area, surface);
  return surface;
}

TEST(OnionSkin, GivesAQuarterToTheOtherPicture) {
  PictureImage white, black;
  white.BackgroundColour = C64Colour::FromByte(1);
  const ZoomArea area = AreaAt(4);
  const Rect box = area.PixelRect(119, 155);
  EXPECT_EQ(DrawnWith(white, black, area).At(box.x + 1, box.y + 1), 0xFFC0C0C0U);
  EXPECT_EQ(DrawnWith(black, white, area).At(box.x + 1, box.y + 1), 0xFF3F3F3FU);
  EXPECT_EQ(DrawnWith(white, white, area).At(box.x + 1, box.y + 1), SurfaceColour(white.BackgroundColour));
}

TEST(OnionSkin, FollowsEachCellAndPixelThatIsDrawnAnew) {
  const PictureImage before = support::RandomPicture(1), other = support::RandomPicture(2);
  for (const int magnification : {4, 8}) {
    const ZoomArea area = AreaAt(magnification);
    PictureImage picture = before;
    Surface surface = DrawnWith(picture, other, area);
    for (const int cell : {1, 790, 791, 1000}) {
      for (int line = 1; line <= 8; ++line) picture.Bitmap[static_cast<std::size_t>(BaseOfCell(cell) + line)] ^= 0x5A;
      RedrawZoomChar(picture, cell, area, kGrid, surface);
      MixOnionSkinCell(other, cell, area, surface);
    }
    for (const PixelPoint at : {PixelPoint{1, 1}, {117, 153}, {118, 154}, {119, 160}}) {
      picture.Bitmap[static_cast<std::size_t>(LookUpPixel(at.x, at.y).byte)] ^= 0xFF;
      for (int x = (at.x - 1) / 4 * 4 + 1, end = x + 4; x < end; ++x) {
        PutZoomPixel(picture, x, at.y, area, kGrid, surface);
        MixOnionSkinPixel(other, x, at.y, area, surface);
      }
    }
    EXPECT_TRUE(Same(surface, DrawnWith(picture, other, area)));
  }
}

}  // namespace
}  // namespace kelvo::model
