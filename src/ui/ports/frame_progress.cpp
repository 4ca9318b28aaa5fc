#include "ui/ports/frame_progress.h"

namespace kelvo::ui {

void FrameProgress::Begin(int last) {
  bar_.setRange(0, last);
  shown_.Restart();
}

void FrameProgress::Advance(int value) {
  if (!shown_.IsOver()) return;
  bar_.setValue(value);
  bar_.show();
  shown_.Paint();
}

void FrameProgress::End() {
  bar_.hide();
}

}  // namespace kelvo::ui
