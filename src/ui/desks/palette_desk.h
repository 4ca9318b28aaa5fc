// Show > Palette: in which colors everything is shown.
#pragma once

#include <QMenu>
#include <QObject>

#include "app/surroundings.h"
#include "files/palette_file.h"
#include "ui/widgets/choice_menu.h"

namespace kelvo::ui {

class PaletteDesk : public QObject {
  Q_OBJECT

 public:
  // Fills `menu`. `window` is what dialogs belong to.
  PaletteDesk(const app::Surroundings& with, QMenu* menu, QWidget* window);

  // The palette of the settings; one that cannot be had any more is told, and the program's own is shown.
  void Restore();
  const files::Palette& Shown() const { return shown_; }

 signals:
  void Changed();

 private:
  void Choose(int index);
  void ChooseFile();
  bool Show(const std::string& setting);
  void CheckShown();

  app::Surroundings with_;
  QWidget* window_;
  ChoiceMenu* choices_;
  files::Palette shown_;
  std::string setting_;  // what the shown one is called there
};

}  // namespace kelvo::ui
