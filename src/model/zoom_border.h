// The colour of the border around the zoomed area.
#pragma once

#include <cstddef>

#include "model/c64_colour.h"

namespace kelvo::model {

enum class ZoomBorder { kFlash, kWhite, kNone };

// The border steps through a ramp from dark to bright and back while it flashes, one step a tick of the timer.
class ZoomBorderColour {
 public:
  void Set(ZoomBorder border) { border_ = border; }

  // True when the colour changed.
  bool Tick();
  C64Colour Colour() const;

 private:
  ZoomBorder border_ = ZoomBorder::kNone;
  std::size_t step_ = 0;
};

}  // namespace kelvo::model
