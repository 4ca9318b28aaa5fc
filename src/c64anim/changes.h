// The changes between two frames, as animation_format.h tells them.
#pragma once

#include <span>

#include "c64anim/animation_format.h"
#include "c64anim/cells.h"

namespace kelvo::c64anim {

// What leads from `one` frame to the `other`, and back.
Bytes ChangesBetween(const Cells& one, const Cells& other);

// A span of changes: which it is, and what it takes.
struct ChangedSpan {
  int number = 0;              // 0..kSpans - 1
  int cells = 0, colours = 0;  // that change, and those of them whose colours do

  int Row() const { return number / kSpansInRow; }  // of cells, 0..24
};

// Makes `changes` in `cells` and tells their spans. Throws std::runtime_error for bytes that ChangesBetween() did not
// make; the cells are then what they were.
std::vector<ChangedSpan> MakeChanges(std::span<const std::uint8_t> changes, Cells& cells);

}  // namespace kelvo::c64anim
