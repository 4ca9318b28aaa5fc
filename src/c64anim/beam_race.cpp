#include "c64anim/beam_race.h"

#include <algorithm>

namespace kelvo::c64anim {
namespace {

constexpr int kLineCycles = 63, kFieldCycles = 312 * kLineCycles, kRowCycles = 8 * kLineCycles, kRows = 25;
// What a row of cells takes from the processor, and in each field the interrupt that counts it.
constexpr int kStolenCycles = 43, kInterruptCycles = 45;
// What the player takes for a step, at the most: to see that its time has come and to go from room to room of the
// memory, and to have the next one ready.
constexpr int kBeginCycles = 240, kNextCycles = 180;

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

// When the beam leaves what changes there, and when it is back. The background is all over the picture.
int TimeLeft(const Span& span) {
  return std::min(span.Row() + 1, kRows) * kRowCycles;
}

int TimeBack(const Span& span) {
  return kFieldCycles + (span.number == kBackgroundSpan ? 0 : span.Row() * kRowCycles);
}

}  // namespace

Race RaceOf(std::span<const Part> parts) {
  Race race;
  int time = WorkedUntil(kRowCycles, kBeginCycles + kInterruptCycles);
  for (const Part& part : parts) {
    if (&part != &parts.front()) time = WorkedUntil(time, part.unpacking);
    for (const Span& span : part.spans) {
      time = WorkedUntil(std::max(time, TimeLeft(span)), span.cycles);
      race.is_overtaken = race.is_overtaken || time >= TimeBack(span);
    }
  }
  race.cycles = time - kRowCycles;
  return race;
}

int FewestFields(const Race& race, int unpacking) {
  const int ready = WorkedUntil(race.cycles + kRowCycles, unpacking + kNextCycles) - kRowCycles;
  return std::max(1, (ready + kFieldCycles - 1) / kFieldCycles);
}

}  // namespace kelvo::c64anim
