// What the main window asks of the system.
#pragma once

#include "ui/ports/event_pump.h"
#include "ui/ports/file_watch.h"
#include "ui/ports/key_guard.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_messages.h"
#include "ui/ports/qt_tool_runner.h"
#include "ui/ports/wait_cursor.h"

namespace kelvo::ui {

struct FramePorts {
  // Dialogs and message boxes stand over `frame`.
  explicit FramePorts(QWidget* frame) : messages(frame), dialogs(frame), events(pointer) {}

  KeyGuard keys;
  QtMessages messages;
  QtFileDialogs dialogs;
  WaitCursor pointer;
  EventPump events;
  FileWatch file_watch;
  QtToolRunner tools;
};

}  // namespace kelvo::ui
