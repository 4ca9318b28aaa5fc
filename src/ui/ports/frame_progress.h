// Progress that costs nothing until there is something to see.
#pragma once

#include <QProgressBar>

#include "app/long_work.h"
#include "ui/ports/display_frame.h"

namespace kelvo::ui {

// Shows a bar, and lets windows paint, at most once a display frame: work that is over within one never shows it. User
// input waits until the work is done, so that no second action starts inside the first.
class FrameProgress final : public app::Progress {
 public:
  explicit FrameProgress(QProgressBar& bar) : bar_(bar) {}

  void Begin(int last) override;
  void Advance(int value) override;
  void End() override;

 private:
  QProgressBar& bar_;
  DisplayFrame shown_;
};

}  // namespace kelvo::ui
