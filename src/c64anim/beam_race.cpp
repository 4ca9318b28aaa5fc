#include "c64anim/beam_race.h"

#include <algorithm>

namespace kelvo::c64anim {
namespace {

constexpr int kLineCycles = 63, kFieldCycles = 312 * kLineCycles, kRowCycles = 8 * kLineCycles, kRows = 25;
// What a row of cells takes from the processor, and in each field the interrupt that counts it.
constexpr int kStolenCycles = 43, kInterruptCycles = 90;
// What the player takes, at the most.
constexpr int kStepCycles = 170, kSpanCycles = 145, kCellCycles = 142, kColourCycles = 37;

// When the next row of cells begins after `time`. Times are cycles since the beam was at the picture's first line.
int NextRow(int time) {
  const int row = time % kFieldCycles / kRowCycles + 1;
  return time / kFieldCycles * kFieldCycles + (row < kRows ? row * kRowCycles : kFieldCycles);
}

// The time after `cycles` of work from `time` on.
int WorkedUntil(int time, int cycles) {
  for (int row = NextRow(time); time + cycles >= row; row = NextRow(row)) {
    cycles += kStolenCycles + (row % kFieldCycles == kRowCycles ? kInterruptCycles : 0);
  }
  return time + cycles;
}

int CyclesOf(const ChangedSpan& span) {
  return kSpanCycles + span.cells * kCellCycles + span.colours * kColourCycles;
}

}  // namespace

Pace PaceOf(std::span<const ChangedSpan> spans) {
  Pace pace;
  int time = WorkedUntil(kRowCycles, kStepCycles + kInterruptCycles);
  for (const ChangedSpan& span : spans) {
    time = WorkedUntil(std::max(time, (span.Row() + 1) * kRowCycles), CyclesOf(span));
    if (time >= kFieldCycles + span.Row() * kRowCycles) pace.is_overtaken = true;
  }
  pace.fields = std::max(1, (time - kRowCycles + kFieldCycles - 1) / kFieldCycles);
  return pace;
}

}  // namespace kelvo::c64anim
