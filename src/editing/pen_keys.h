// The keys that choose the left pen's colour.
#pragma once

#include <optional>

#include "model/c64_colour.h"

namespace kelvo::editing {

// '1'..'8' give the colours 0..7, Q W E R T Y U I (upper or lower case) 8..15; other keys nothing.
std::optional<model::C64Colour> PenForKey(char key);

}  // namespace kelvo::editing
