// How fast the player is, against the beam of a PAL machine.
//
// The player makes the changes of each row of cells when the beam has left it, and must be done with it before the beam
// comes there again. The cycles are the player's own (animplay.src); a test runs it and sees that they are enough.
#pragma once

#include <span>

#include "c64anim/changes.h"

namespace kelvo::c64anim {

struct Pace {
  int fields = 1;             // that the frame before must at least be shown
  bool is_overtaken = false;  // the beam comes to cells that have not changed yet: a part of a field shows both frames
};

// The pace of changes with these spans, in their order.
Pace PaceOf(std::span<const ChangedSpan> spans);

}  // namespace kelvo::c64anim
