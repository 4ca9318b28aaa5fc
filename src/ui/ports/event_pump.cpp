#include "ui/ports/event_pump.h"

namespace kelvo::ui {

void EventPump::Process() {
  if (!shown_.IsOver()) return;
  pointer_.Appear();
  shown_.Paint();
}

}  // namespace kelvo::ui
