// The end of a build that sends the program to a C64.
#pragma once

#include "c64out/build_job.h"

namespace kelvo::c64out {

// Sends the finished program to the C64 and starts it there; or, where the choice says so, lets the C64 save it on its
// own drive. Throws like BuildJob::Run.
void EndOverNetwork(const BuildJob& job);

}  // namespace kelvo::c64out
