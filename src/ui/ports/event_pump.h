// Lets windows paint in the middle of long work.
#pragma once

#include "app/long_work.h"
#include "ui/ports/display_frame.h"
#include "ui/ports/wait_cursor.h"

namespace kelvo::ui {

// Does so at most once a display frame, however often it is called.
class EventPump final : public app::ProcessEvents {
 public:
  explicit EventPump(WaitCursor& pointer) : pointer_(pointer) {}
  void Process() override;

 private:
  WaitCursor& pointer_;
  DisplayFrame shown_;
};

}  // namespace kelvo::ui
