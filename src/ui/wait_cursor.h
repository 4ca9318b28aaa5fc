// The hourglass.
#pragma once

#include "app/wait_pointer.h"

namespace kelvo::ui {

class WaitCursor final : public app::WaitPointer {
 public:
  void Show() override;
  void Hide() override;
};

}  // namespace kelvo::ui
