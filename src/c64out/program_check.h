// Tries a finished program in a C64 without ROMs before it is kept.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "c64/machine.h"
#include "c64/screen.h"
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

// What a C64's screen has where it shows `picture`.
using ScreenPixels = decltype(c64::Screen::pixels);
ScreenPixels PixelsOf(const model::PictureImage& picture);

// What `watch` finds at a C64 with `program`, a PRG, before it starts. One that was made to be started over a network
// is started from a running program. A crash ends the watch, and so does what only a C64 with its ROMs knows: that is
// what is found then.
ProgramFinding TryInC64(std::span<const std::uint8_t> program, bool via_codenet,
                        const std::function<ProgramFinding(c64::Machine&)>& watch);

// Runs `program` until it shows `picture` with every pixel, or for some seconds of a C64's time.
ProgramFinding TryProgram(std::span<const std::uint8_t> program, const model::PictureImage& picture, bool via_codenet);

}  // namespace kelvo::c64out
