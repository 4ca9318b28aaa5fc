// Reads an animation's bytes as animation_format.h tells them, without the player.
#pragma once

#include "c64anim/animation_format.h"
#include "c64anim/cells.h"

namespace kelvo::support {

// A frame and for how many fields it stays; 0 for ever.
struct DecodedTurn {
  c64anim::FrameBytes frame;
  int fields = 0;
};

// What is seen of `memory`, from the first frame on, `turns` turns; fewer where it stays. Throws std::runtime_error for
// bytes that tell of nothing.
std::vector<DecodedTurn> DecodedAnimation(const c64anim::Bytes& memory, std::size_t turns);

}  // namespace kelvo::support
