// How fast the player is, against the beam of a PAL machine.
//
// The player makes the changes of each row of cells when the beam has left it, and must be done with it before the beam
// comes there again. The cycles are the player's own (animplay.src); a test runs it and sees that they are enough.
#pragma once

#include <span>
#include <vector>

#include "c64anim/changes.h"

namespace kelvo::c64anim {

// Spans that are made one after the other, and the cycles that go into unpacking them before.
struct Part {
  int unpacking = 0;
  std::vector<Span> spans;
};

// How making changes goes whose first part is unpacked.
struct Race {
  int cycles = 0;             // from the beam's leaving the first row of cells until they are made
  bool is_overtaken = false;  // the beam comes to cells that have not changed yet: a part of a field shows both frames
};

Race RaceOf(std::span<const Part> parts);

// For how many fields a frame is at least shown whose changes are made in `race`, when the next frame's take
// `unpacking` cycles before they can begin.
int FewestFields(const Race& race, int unpacking);

}  // namespace kelvo::c64anim
