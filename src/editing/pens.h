// The colours of the two mouse buttons, and the keys that choose the left one.
#pragma once

#include <optional>
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

// The left pen's colour for a key: '1'..'8' give the colours 0..7, Q W E R T Y U I (upper or lower case) 8..15; other
// keys nothing.
std::optional<model::C64Colour> PenForKey(char key);

// The key that gives a colour, in upper case.
char KeyForPen(model::C64Colour colour);

}  // namespace kelvo::editing
