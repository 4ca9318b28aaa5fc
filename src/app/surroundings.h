// What nearly every operation works with.
#pragma once

#include "app/clock.h"
#include "app/error_log.h"
#include "app/messages.h"
#include "app/program_folders.h"
#include "app/settings_store.h"

namespace kelvo::app {

// All of it outlives whoever holds this.
struct Surroundings {
  const ProgramFolders& folders;
  SettingsStore& settings;
  const Clock& clock;
  const ErrorLog& log;
  Messages& messages;
  PromptOutput& prompt;
};

}  // namespace kelvo::app
