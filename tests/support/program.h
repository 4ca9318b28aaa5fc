// The program below its windows: real folders and files, and ports that remember.
#pragma once

#include "app/error_log.h"
#include "app/program_folders.h"
#include "files/picture_files.h"
#include "support/recorders.h"
#include "support/temp_folder.h"

namespace kelvo::support {

struct Program {
  Program() { folders.Create(); }

  TempFolder folder;
  app::ProgramFolders folders{folder / "program"};
  MapSettings settings;
  FixedClock clock;
  app::ErrorLog log{folders.ErrorLogFile(), clock};
  RecordingMessages messages;
  RecordingPrompt prompt;
  NoWaitPointer pointer;
  PlannedDialogs dialogs;
  RecordingDisplay display;
  RecordingViews views;
  files::Document document;
  files::PictureFiles files{document,
                            {folders, settings, clock, log, messages, prompt, pointer, dialogs, display, views}};
};

}  // namespace kelvo::support
