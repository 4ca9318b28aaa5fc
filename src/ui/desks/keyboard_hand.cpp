#include "ui/desks/keyboard_hand.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <utility>

namespace kelvo::ui {
namespace {

constexpr int kCellWidth = 4, kCellHeight = 8;

constexpr std::array<KeyboardHand::KeyRow, 7> kKeys{{
    {"Enter", "Show the pixel cursor, or put it away (Escape too)"},
    {"Arrows", "Move the cursor"},
    {"Shift+Arrows", "Move the cursor by a cell"},
    {"Space", "The left button, held to draw"},
    {"Shift+Space", "The right button, held to draw"},
    {"P", "Take the color under the cursor into the left pen"},
    {"Shift+P", "Take the color under the cursor into the right pen"},
}};

struct Arrow {
  int key, dx, dy;
};
constexpr std::array<Arrow, 4> kArrows{
    {{Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}}};

const Arrow* ArrowOf(int key) {
  const auto* found = std::find_if(kArrows.begin(), kArrows.end(), [key](const Arrow& row) { return row.key == key; });
  return found == kArrows.end() ? nullptr : found;
}

bool IsEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// With Ctrl or Alt a key is a shortcut, or scrolls.
bool IsPlain(const QKeyEvent& key) {
  return (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
}

bool IsSpaceLetGo(const QEvent& event) {
  if (event.type() != QEvent::KeyRelease) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_Space && !key.isAutoRepeat();
}

}  // namespace

std::span<const KeyboardHand::KeyRow> KeyboardHand::Keys() {
  return kKeys;
}

KeyboardHand::KeyboardHand(frmZoom& zoom) : zoom_(zoom) {
  zoom_.installEventFilter(this);
}

bool KeyboardHand::eventFilter(QObject* watched, QEvent* event) {
  if (IsSpaceLetGo(*event)) LetGo();  // wherever that is: a message box may have come up meanwhile
  if (watched == &zoom_ && event->type() == QEvent::ParentChange) zoom_.parentWidget()->installEventFilter(this);
  if (!IsZoomWindow(watched)) return false;
  if (event->type() == QEvent::KeyPress) return KeyDown(*static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::KeyRelease) return KeyUp(*static_cast<QKeyEvent*>(event));
  return false;
}

// The frame around it has the keyboard itself when the program starts, and after a click on the title.
bool KeyboardHand::IsZoomWindow(const QObject* watched) const {
  return watched == &zoom_ || watched == zoom_.parentWidget();
}

bool KeyboardHand::KeyDown(const QKeyEvent& key) {
  if (!IsPlain(key)) return false;
  if (IsEnter(key.key())) {
    if (!key.isAutoRepeat()) Toggle();
    return true;
  }
  if (!IsShown()) return false;
  const bool shift = key.modifiers().testFlag(Qt::ShiftModifier);
  const Qt::MouseButton button = shift ? Qt::RightButton : Qt::LeftButton;
  if (key.key() == Qt::Key_Space) {
    if (!key.isAutoRepeat()) Hold(button);
    return true;
  }
  if (key.key() == Qt::Key_P) {
    emit ColourAsked(*cursor_, button);
    return true;
  }
  const Arrow* arrow = ArrowOf(key.key());
  if (arrow == nullptr) return false;
  MoveTo({cursor_->x + arrow->dx * (shift ? kCellWidth : 1), cursor_->y + arrow->dy * (shift ? kCellHeight : 1)});
  return true;
}

// What the press did, the release must not do in another way: the window scrolls when an arrow is let go.
bool KeyboardHand::KeyUp(const QKeyEvent& key) const {
  if (!IsPlain(key)) return false;
  return IsEnter(key.key()) || (IsShown() && (key.key() == Qt::Key_Space || ArrowOf(key.key()) != nullptr));
}

void KeyboardHand::Toggle() {
  if (IsShown()) return PutAway();
  MoveTo(zoom_.Area().ShowsPixel(start_.x, start_.y) ? start_ : zoom_.Area().Middle());
}

void KeyboardHand::MoveTo(model::PixelPoint at) {
  cursor_ = {std::clamp(at.x, 1, model::PictureImage::kWidth), std::clamp(at.y, 1, model::PictureImage::kHeight)};
  zoom_.Reveal(*cursor_);
  zoom_.ShowCursor(cursor_);
  emit Moved(*cursor_, held_ != Qt::NoButton);
}

void KeyboardHand::PutAway() {
  if (!IsShown()) return;
  LetGo();
  cursor_.reset();
  zoom_.ShowCursor(std::nullopt);
  emit CursorGone();
}

void KeyboardHand::Hold(Qt::MouseButton button) {
  LetGo();  // what is still held was let go where nobody saw it
  held_ = button;
  qApp->installEventFilter(this);
  emit Pressed(*cursor_, button);
}

void KeyboardHand::LetGo() {
  if (held_ == Qt::NoButton) return;
  qApp->removeEventFilter(this);
  emit Released(std::exchange(held_, Qt::NoButton));
}

}  // namespace kelvo::ui
