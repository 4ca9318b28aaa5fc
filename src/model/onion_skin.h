// Other pictures shining through the zoomed one: the frames before and after, under the frame that is being drawn.
//
// Each procedure mixes into boxes that the procedure of the same reach in zoom_view.h has just drawn, grid lines
// included; so a view calls them in pairs, once each. Mixed twice, the others would grow stronger.
#pragma once

#include <vector>

#include "model/picture_image.h"
#include "model/surface.h"
#include "model/zoom_area.h"

namespace kelvo::model {

struct OnionSkin {
  static constexpr int kFaintest = 1, kStrongest = 3;

  std::vector<PictureImage> pictures;  // none, one, or two, which have equal parts
  int quarters = kFaintest;            // of what is to be seen: kFaintest..kStrongest
};

// After DrawCapturePic().
void MixOnionSkin(const OnionSkin& skin, const ZoomArea& area, Surface& surface);

// After RedrawZoomChar(). `cell` is 1..1000; nothing when the area does not show it.
void MixOnionSkinCell(const OnionSkin& skin, int cell, const ZoomArea& area, Surface& surface);

// After PutZoomPixel(). x is 1..160, y 1..200; nothing when the area does not show it.
void MixOnionSkinPixel(const OnionSkin& skin, int x, int y, const ZoomArea& area, Surface& surface);

}  // namespace kelvo::model
