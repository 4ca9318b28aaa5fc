// Lets windows paint in the middle of long work.
#pragma once

#include <QElapsedTimer>

#include "app/process_events.h"

namespace kelvo::ui {

// Does so at most once a display frame, however often it is called.
class EventPump final : public app::ProcessEvents {
 public:
  EventPump() { since_paint_.start(); }
  void Process() override;

 private:
  QElapsedTimer since_paint_;
};

}  // namespace kelvo::ui
