// What comes of a build.
#pragma once

#include <filesystem>
#include <optional>

#include "c64out/build_job.h"

namespace kelvo::c64out {

// Why a build failed is in the prompt; why it was given up, a message box has told.
enum class BuildOutcome { kDone, kStopped, kFailed, kGivenUp };

struct BuildResult {
  BuildOutcome outcome;
  std::optional<ToolCommand> emulator;  // what is to be shown next, once other builds may begin
  std::filesystem::path made;           // the file beside the picture; empty where there is none
};

// Runs the emulator until the user closes it or it is no longer waited for. Its failure is told like that of a build.
BuildOutcome ShowInEmulator(const ToolCommand& emulator, const BuildSurroundings& with);

}  // namespace kelvo::c64out
