// From the picture in memory to a program that shows it on a C64.
#pragma once

#include "c64out/build_result.h"
#include "files/document.h"

namespace kelvo::c64out {

// Builds what `choice` asks for out of `document`, which has a file: a PRG or a D64 beside the picture, or a transfer
// to a C64. Lines in the prompt tell how far it is. Returns when it is done, failed, given up or stopped by the user.
// No emulator runs then yet: it may be looked at for hours.
//
// A failure is one "--> " line that says what went wrong, then "--> [err 908]"; the work files are removed then, and an
// older result beside the picture stays as it was. The picture, its name and the dialogs' folder stay as they are.
BuildResult BuildCompoPic(const files::Document& document, const CompoPicChoice& choice, const BuildSurroundings& with);

}  // namespace kelvo::c64out
