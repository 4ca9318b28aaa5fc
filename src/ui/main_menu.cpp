#include "ui/main_menu.h"

#include <QMenuBar>
#include <algorithm>

#include "ui/main_frame.h"
#include "ui/menu_table.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/icons.h"

namespace kelvo::ui {

MainMenu::MainMenu(MainFrame& frame) : frame_(frame) {
  for (const MenuRow& row : Menus()) {
    auto* menu = new QMenu(row.text, &frame);
    menu->setObjectName(row.name);
    menu->setStatusTip(row.tip);
    menu->setToolTipsVisible(true);  // what an entry lacks that cannot be chosen
    if (row.parent == nullptr) frame.menuBar()->addMenu(menu);
    menus_.insert(row.name, menu);
  }
  for (const MenuEntry& entry : MenuEntries()) {
    QMenu* menu = menus_.value(entry.menu);
    if (entry.name == nullptr) {
      menu->addSeparator();
    } else if (entry.text == nullptr) {
      menu->addMenu(menus_.value(entry.name));
    } else {
      const bool by_letter = IsLetter(entry.key);
      auto* action = new QAction(QString(entry.text) + (by_letter ? QString("\t") + entry.key : QString()), &frame);
      action->setObjectName(entry.name);
      if (!by_letter) action->setShortcut(QKeySequence(entry.key));
      action->setStatusTip(entry.tip);
      if (entry.icon != nullptr) action->setIcon(IconNamed(entry.icon));
      action->setCheckable(entry.is_checked != nullptr);
      QObject::connect(action, &QAction::triggered, &frame, [&frame, this, run = entry.run] {
        run(frame);
        Refresh();
      });
      menu->addAction(action);
      actions_.insert(entry.name, action);
    }
  }
}

void MainMenu::SetKeys(const QString& name, const QString& keys) {
  actions_.value(name)->setShortcuts(QKeySequence::listFromString(keys));
}

bool MainMenu::HandleKeyUp(int key, Qt::KeyboardModifiers modifiers) const {
  if (modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
  const auto entries = MenuEntries();
  const auto entry = std::find_if(entries.begin(), entries.end(), [key](const MenuEntry& row) {
    return row.name != nullptr && IsLetter(row.key) && row.key[0] == key;
  });
  if (entry != entries.end()) actions_.value(entry->name)->trigger();
  return entry != entries.end();
}

void MainMenu::Refresh() const {
  for (const MenuEntry& entry : MenuEntries()) {
    QAction* action = actions_.value(entry.name);
    if (action == nullptr) continue;
    const bool can = entry.can == nullptr || entry.can(frame_);
    action->setEnabled(can);
    action->setToolTip(can ? nullptr : entry.lack);
    if (entry.is_checked != nullptr) action->setChecked(entry.is_checked(frame_));
    if (entry.text_now != nullptr) action->setText(ToQt(entry.text_now(frame_)));
  }
}

}  // namespace kelvo::ui
