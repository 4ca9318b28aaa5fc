// Lets windows paint in the middle of long work.
#pragma once

#include <QElapsedTimer>

#include "app/process_events.h"
#include "ui/ports/wait_cursor.h"

namespace kelvo::ui {

// Does so at most once a display frame, however often it is called.
class EventPump final : public app::ProcessEvents {
 public:
  explicit EventPump(WaitCursor& pointer) : pointer_(pointer) { since_paint_.start(); }
  void Process() override;

 private:
  WaitCursor& pointer_;
  QElapsedTimer since_paint_;
};

}  // namespace kelvo::ui
