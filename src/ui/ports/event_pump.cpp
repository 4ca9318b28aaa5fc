#include "ui/ports/event_pump.h"

#include <QCoreApplication>

#include "ui/ports/display_frame.h"

namespace kelvo::ui {

void EventPump::Process() {
  if (since_paint_.elapsed() < kDisplayFrameMilliseconds) return;
  pointer_.Appear();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  since_paint_.restart();
}

}  // namespace kelvo::ui
