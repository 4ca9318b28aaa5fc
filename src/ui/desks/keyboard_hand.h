// Painting by keyboard: a pixel cursor in the zoom window stands for the mouse pointer, Space for its buttons.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <optional>
#include <span>

#include "model/pixel_place.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

// Watches the keys of the zoom window. Enter shows the cursor and puts it away; while it is shown the arrows move it,
// by a cell with Shift, and the view follows. Space holds the left button, Shift+Space the right one, until it is let
// go: a repeating key is no second press. P takes the colour under the cursor, Shift+P for the right pen. Keys that
// mean nothing here go on to the window.
class KeyboardHand : public QObject {
  Q_OBJECT

 public:
  explicit KeyboardHand(frmZoom& zoom);

  bool IsShown() const { return cursor_.has_value(); }
  // Where the cursor is; it is shown.
  model::PixelPoint At() const { return *cursor_; }
  void PutAway();

  // Where the cursor appears when that is in view; else in the middle of what is.
  void SetStart(model::PixelPoint start) { start_ = start; }

  struct KeyRow {
    const char* keys;
    const char* what;
  };
  // For the page of keys.
  static std::span<const KeyRow> Keys();

 signals:
  void Pressed(model::PixelPoint at, Qt::MouseButton button);
  void Moved(model::PixelPoint at, bool held);  // with the button that was pressed here, or none
  void Released(Qt::MouseButton button);
  void ColourAsked(model::PixelPoint at, Qt::MouseButton button);  // for that button's pen
  void CursorGone();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsZoomWindow(const QObject* watched) const;
  bool KeyDown(const QKeyEvent& key);
  bool KeyUp(const QKeyEvent& key) const;
  void Toggle();
  void MoveTo(model::PixelPoint at);
  void Hold(Qt::MouseButton button);
  void LetGo();

  frmZoom& zoom_;
  model::PixelPoint start_;
  std::optional<model::PixelPoint> cursor_;
  Qt::MouseButton held_ = Qt::NoButton;
};

}  // namespace kelvo::ui
