// The menu bar, made from the menu tables.
#pragma once

#include <QAction>
#include <QHash>
#include <QMenu>

namespace kelvo::ui {

class MainFrame;

class MainMenu {
 public:
  // Fills `frame`'s menu bar. Every action belongs to `frame` and has its row's name as objectName.
  explicit MainMenu(MainFrame& frame);

  // Asks every row whether it can, whether it is checked, and what it says.
  void Refresh() const;

  // The keys of an entry, with "; " between them; none for an empty text.
  void SetKeys(const QString& name, const QString& keys);

  // A letter was let go in the main window. True when it is an entry's key.
  bool HandleKeyUp(int key, Qt::KeyboardModifiers modifiers) const;

  QMenu* Menu(const QString& name) const { return menus_.value(name); }

 private:
  MainFrame& frame_;
  QHash<QString, QMenu*> menus_;
  QHash<QString, QAction*> actions_;
};

}  // namespace kelvo::ui
