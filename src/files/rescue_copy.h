// Unsaved pictures that are kept before an operation throws them away.
#pragma once

#include <filesystem>

#include "app/clock.h"
#include "app/program_folders.h"
#include "files/document.h"

namespace kelvo::files {

// Writes the picture in memory into the BACKUP folder in the own format, named after the picture with the time and
// "_unsaved"; a number follows where such a file is there already. Gives the path. Throws app::FileError.
std::filesystem::path KeepRescueCopy(const Document& document, const app::ProgramFolders& folders,
                                     const app::Clock& clock);

}  // namespace kelvo::files
