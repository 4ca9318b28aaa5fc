// The port through which long work lets the windows paint.
#pragma once

namespace kelvo::app {

class ProcessEvents {
 public:
  virtual ~ProcessEvents() = default;
  // Cheap enough to be called often. User input stays waiting.
  virtual void Process() = 0;
};

}  // namespace kelvo::app
