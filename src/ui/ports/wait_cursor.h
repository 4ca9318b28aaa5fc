// The hourglass.
#pragma once

#include "app/long_work.h"

namespace kelvo::ui {

// It is to be seen only once work lasts longer than a display frame: whoever lets windows paint during work calls
// Appear().
class WaitCursor final : public app::WaitPointer {
 public:
  void Show() override { ++depth_; }
  void Hide() override;
  void Appear();

 private:
  int depth_ = 0;
  bool is_seen_ = false;
};

}  // namespace kelvo::ui
