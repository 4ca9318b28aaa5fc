// The colours of the two mouse buttons.
#pragma once

#include <utility>

#include "model/c64_colour.h"

namespace kelvo::editing {

enum class Button { kLeft, kRight };

struct Pens {
  model::C64Colour left = model::C64Colour::FromByte(1);
  model::C64Colour right = model::C64Colour::FromByte(0);

  model::C64Colour Of(Button button) const { return button == Button::kLeft ? left : right; }
  void Swap() { std::swap(left, right); }
};

}  // namespace kelvo::editing
