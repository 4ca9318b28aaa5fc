// The command prompt's lines reach files, images and animation.
#pragma once

#include <QString>

#include "files/picture_files.h"
#include "ui/desks/animation_desk.h"
#include "ui/desks/import_desk.h"

namespace kelvo::ui {

class CommandDesk {
 public:
  // All of it outlives the desk.
  CommandDesk(const files::PictureSurroundings& with, AnimationDesk& animation, ImportDesk& imports)
      : with_(with), animation_(animation), imports_(imports) {}

  void Process(const QString& line);
  bool HasLast() const { return !last_.isEmpty(); }
  void RepeatLast() { Process(last_); }

 private:
  files::PictureSurroundings with_;
  AnimationDesk& animation_;
  ImportDesk& imports_;
  QString last_;
};

}  // namespace kelvo::ui
