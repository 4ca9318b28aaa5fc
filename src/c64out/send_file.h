// Sending any file to a C64 with the network loader.
#pragma once

#include <string>

#include "c64out/build_job.h"
#include "c64out/codenet_form.h"

namespace kelvo::c64out {

// The loader's call for a form: its file by its short path, which is empty for one that is not there and begins with no
// "-".
ToolCommand SendCommand(const CodenetForm& form, const app::ProgramFolders& folders);

// Runs the loader and waits for it. Nothing that the form holds is refused here. Gives how it went, in words for the
// user; a failure is told in the prompt too, as "--> " and what the loader said (or which file is missing), then
// "--> [err 908]".
std::string SendFile(const CodenetForm& form, const BuildSurroundings& with);

}  // namespace kelvo::c64out
