// Keys act when they are let go, so a release has to belong to a press of the same window.
#pragma once

#include <QHash>
#include <QObject>

namespace kelvo::ui {

// Watches the keys of the whole program. Menus and dialogs close when a key is pressed: its release would then reach
// the window behind them and act there. Such releases are swallowed.
class KeyGuard : public QObject {
 public:
  KeyGuard();

  // What was held when `key` was pressed, also where that was let go first.
  Qt::KeyboardModifiers HeldAtPress(int key) const { return pressed_.value(key); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QHash<int, Qt::KeyboardModifiers> pressed_;  // by key: what was held at its last press, if no menu or dialog took it
};

}  // namespace kelvo::ui
