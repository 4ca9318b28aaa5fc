// Plays the program of an animation in a C64 without ROMs before it is kept.
#pragma once

#include <cstdint>
#include <span>

#include "c64out/animation_release.h"
#include "c64out/program_check.h"

namespace kelvo::c64out {

// The most fields that are tried, and so the most pictures that are needed for it.
inline constexpr int kMostTriedFields = 1000;

// Whether `program`, a PRG, shows every frame of `release` with every pixel, at its time and for its time, in the first
// round. Where a change takes several fields the frame may come as much later, and where there are too few it need not
// be seen.
ProgramFinding TryAnimation(std::span<const std::uint8_t> program, const Release& release, bool via_codenet);

}  // namespace kelvo::c64out
