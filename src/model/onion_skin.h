// Another picture shining through the zoomed one at 25 %: the frame before, under the frame that is being drawn.
//
// Each procedure mixes into boxes that the procedure of the same reach in zoom_view.h has just drawn, grid lines
// included; so a view calls them in pairs, once each. Mixed twice, the other picture would grow stronger.
#pragma once

#include "model/picture_image.h"
#include "model/surface.h"
#include "model/zoom_area.h"

namespace kelvo::model {

// After DrawCapturePic().
void MixOnionSkin(const PictureImage& other, const ZoomArea& area, Surface& surface);

// After RedrawZoomChar(). `cell` is 1..1000; nothing when the area does not show it.
void MixOnionSkinCell(const PictureImage& other, int cell, const ZoomArea& area, Surface& surface);

// After PutZoomPixel(). x is 1..160, y 1..200; nothing when the area does not show it.
void MixOnionSkinPixel(const PictureImage& other, int x, int y, const ZoomArea& area, Surface& surface);

}  // namespace kelvo::model
