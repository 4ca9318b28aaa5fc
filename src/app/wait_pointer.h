// The port that shows the hourglass while the program is busy.
#pragma once

namespace kelvo::app {

class WaitPointer {
 public:
  virtual ~WaitPointer() = default;
  virtual void Show() = 0;
  virtual void Hide() = 0;
};

// Shows the hourglass for as long as it lives.
class WaitScope {
 public:
  explicit WaitScope(WaitPointer& pointer) : pointer_(pointer) { pointer_.Show(); }
  ~WaitScope() { pointer_.Hide(); }
  WaitScope(const WaitScope&) = delete;
  WaitScope& operator=(const WaitScope&) = delete;

 private:
  WaitPointer& pointer_;
};

}  // namespace kelvo::app
