// The changes between two frames, as animation_format.h tells them, and what they cost the player.
#pragma once

#include <vector>

#include "c64anim/animation_format.h"
#include "c64anim/cells.h"

namespace kelvo::c64anim {

// The changes of a span, or of the background. Where all lines of some cells change and few of others, these are two
// spans of one number.
struct Span {
  int number = 0;  // 0..kBackgroundSpan
  int cells = 0;   // that change
  int cycles = 0;  // that the player takes for them, at the most
  Bytes bytes;

  int Row() const { return number / kSpansInRow; }  // of cells, 0..24; the background's is 25

  friend bool operator==(const Span&, const Span&) = default;
};

// What leads from `one` frame to the `other`, and back.
std::vector<Span> SpansBetween(const FrameBytes& one, const FrameBytes& other);

}  // namespace kelvo::c64anim
