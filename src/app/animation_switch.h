// The port through which the command language reaches animation mode.
#pragma once

namespace kelvo::app {

class AnimationSwitch {
 public:
  virtual ~AnimationSwitch() = default;

  // What the menu entry Animation mode does, with all its questions: its check mark tells how it ended, and the flag
  // follows it.
  virtual void ToggleAnimMode() = 0;
  virtual bool IsAnimModeChecked() const = 0;

  // Sets the animation-mode flag, which is what the status bar says. The menu entry is left alone, on purpose.
  virtual void SetAnimFlag(bool on) = 0;
};

}  // namespace kelvo::app
