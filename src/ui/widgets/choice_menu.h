// A menu of which exactly one entry is checked.
#pragma once

#include <QActionGroup>
#include <QMenu>
#include <QStringList>

namespace kelvo::ui {

// Fills `menu` with an entry for each caption; entry n gets the objectName "<menu's name>_n", n counted from 0.
class ChoiceMenu : public QObject {
  Q_OBJECT

 public:
  ChoiceMenu(QMenu* menu, const QStringList& captions);

  void Check(int index);  // says nothing

 signals:
  void Chosen(int index);

 private:
  QActionGroup* group_;
};

}  // namespace kelvo::ui
