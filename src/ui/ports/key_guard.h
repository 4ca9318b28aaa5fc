// Keys act when they are let go, so a release has to belong to a press of the same window.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace kelvo::ui {

// Watches the keys of the whole program. Menus, dialogs and some windows close when a key is pressed: its release would
// then reach the window behind them and act there. Such releases are swallowed.
class KeyGuard : public QObject {
 public:
  KeyGuard();

  // What was held when `key` was pressed, also where that was let go first.
  Qt::KeyboardModifiers HeldAtPress(int key) const { return pressed_.value(key).held; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Press {
    Qt::KeyboardModifiers held;
    QPointer<const QWidget> window;
  };

  QHash<int, Press> pressed_;  // by key: its last press, if no menu or dialog took it
};

}  // namespace kelvo::ui
