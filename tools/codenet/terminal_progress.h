// Progress as one line that rewrites itself, where somebody watches: a user at a terminal, or Kelvo.
#pragma once

#include "app/long_work.h"

namespace kelvo::codenet {

// Writes to the standard error stream; silent when that is no terminal and Kelvo (KELVO_TOOL) has not started this.
class TerminalProgress final : public app::Progress {
 public:
  TerminalProgress();
  void Begin(int last) override;
  void Advance(int value) override;
  void End() override;

 private:
  bool is_terminal_, is_shown_;
  int last_ = 0;
};

}  // namespace kelvo::codenet
