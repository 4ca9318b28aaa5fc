// Tries a finished program in a C64 without ROMs before it is kept.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "model/picture_image.h"

namespace kelvo::c64out {

enum class ProgramState {
  kShowsPicture,
  kShowsOther,      // it runs, and shows something else, for `why`
  kCannotBeJudged,  // it does what only a C64 with its ROMs knows
  kCrashes,
};

struct ProgramFinding {
  ProgramState state;
  std::string why;  // empty for kShowsPicture
};

// Runs `program`, a PRG, until it shows `picture` with every pixel, or for some seconds of a C64's time. One that was
// made to be started over a network is started from a running program.
ProgramFinding TryProgram(std::span<const std::uint8_t> program, const model::PictureImage& picture, bool via_codenet);

}  // namespace kelvo::c64out
