// Animation mode: switching it on and off, with its questions.
#pragma once

#include <string_view>

#include "anim/anim_settings.h"
#include "app/messages.h"
#include "app/settings_store.h"
#include "files/document.h"
#include "files/picture_files.h"

namespace kelvo::anim {

// Where the mode shows.
class AnimDisplay {
 public:
  virtual ~AnimDisplay() = default;
  virtual void ShowCheckMark(bool on) = 0;             // of the menu entry Animation mode
  virtual void ShowStatus(std::string_view text) = 0;  // "ANIM=ON" or "ANIM=OFF", in the fourth status panel
  virtual void ShowFrameWindow() = 0;                  // makes it when there is none
  virtual void UnloadFrameWindow() = 0;                // keeps its place; nothing when there is none
};

// The menu's check mark and the flag, which stands in the status bar alone, are two states, on purpose: the check mark
// says whether the frame window is open, and the flag follows it; but the command prompt can set the flag alone. Then
// they disagree until the mode is switched again.
class AnimMode {
 public:
  AnimMode(const files::PictureSurroundings& with, AnimDisplay& display) : with_(with), display_(display) {}

  // What the menu entry does. All that stands against the mode is told, and leaves it off.
  void ToggleAnimMode();
  bool IsAnimModeChecked() const { return checked_; }

  // Sets the flag alone.
  void SetAnimFlag(bool on);

  // The frame window is gone, whoever closed it: the check mark is cleared.
  void FrameWindowUnloaded() { Check(false); }

 private:
  void Check(bool on);
  bool MayStart();
  bool Refuse(std::string_view why);

  files::PictureSurroundings with_;
  AnimDisplay& display_;
  bool checked_ = false;
};

}  // namespace kelvo::anim
