#include "ui/ports/frame_progress.h"

#include <QCoreApplication>

#include "ui/ports/display_frame.h"

namespace kelvo::ui {

void FrameProgress::Begin(int last) {
  bar_.setRange(0, last);
  since_paint_.start();
}

void FrameProgress::Advance(int value) {
  if (since_paint_.elapsed() < kDisplayFrameMilliseconds) return;
  bar_.setValue(value);
  bar_.show();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  since_paint_.restart();
}

void FrameProgress::End() {
  bar_.hide();
}

}  // namespace kelvo::ui
