// What every drawing tool is asked.
#pragma once

#include <string_view>

#include "editing/pens.h"
#include "editing/shapes.h"
#include "model/pixel_place.h"

namespace kelvo::editing {

// A place in the picture with the mouse button that is pressed there.
struct PointerEvent {
  model::PixelPoint at;  // 1..160, 1..200
  Button button = Button::kLeft;
};

enum class PressResult {
  kStroke,   // a stroke begins: moves with the button held go to Drag()
  kHandled,  // the press was all
};

// Pixels come in, plots go out: a tool knows no window, zoom factor or menu.
class Tool {
 public:
  virtual ~Tool() = default;

  // What the status bar shows: the tool, or the point to set next.
  virtual std::string_view Prompt() const = 0;

  virtual PressResult Press(const PointerEvent& event) = 0;

  // The pointer moved on from `from` while the stroke lasts; the places in between were crossed.
  virtual void Drag([[maybe_unused]] model::PixelPoint from, [[maybe_unused]] const PointerEvent& to) {}

  // The timer ticked, ten times a second. True when a shape was drawn.
  virtual bool Tick() { return false; }

  // Takes back an unfinished shape, and its undo step where nothing of it is drawn yet. False when there is none.
  virtual bool Cancel() { return false; }

  // The points that a press at `pointer` would plot now.
  virtual Points Preview([[maybe_unused]] model::PixelPoint pointer) const { return {}; }
};

}  // namespace kelvo::editing
