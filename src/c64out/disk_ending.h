// The end of a build that makes a disk image.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "c64out/build_job.h"

namespace kelvo::c64out {

// Puts the finished program into a copy of the blank disk beside the picture. Gives what starts the emulator on it
// where the choice says so. Throws like BuildJob::Run; an older image is then as it was, unless it is the emulator that
// is missing.
std::optional<ToolCommand> EndWithDisk(const BuildJob& job);

// A program's name as the disk tool and the emulator are given it: `name` in lower case, its first 16 characters, and
// ".prg". That may be 20 characters, on purpose: the ending is not part of the cut.
std::string NameOnDisk(std::string_view name);

}  // namespace kelvo::c64out
