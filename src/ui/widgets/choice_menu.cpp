#include "ui/widgets/choice_menu.h"

namespace kelvo::ui {

ChoiceMenu::ChoiceMenu(QMenu* menu, const QStringList& captions) : QObject(menu), group_(new QActionGroup(this)) {
  for (const QString& caption : captions) {
    const auto index = static_cast<int>(group_->actions().size());
    QAction* entry = menu->addAction(caption);
    entry->setObjectName(QString("%1_%2").arg(menu->objectName()).arg(index));
    entry->setCheckable(true);
    entry->setStatusTip(menu->statusTip());
    group_->addAction(entry);
    connect(entry, &QAction::triggered, this, [this, index] { emit Chosen(index); });
  }
}

void ChoiceMenu::Check(int index) {
  group_->actions().at(index)->setChecked(true);
}

}  // namespace kelvo::ui
