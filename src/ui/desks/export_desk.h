// The ways in which a picture leaves Kelvo: as a file of another format, on the clipboard, and by a drag.
#pragma once

#include <QImage>
#include <QWidget>

#include "app/surroundings.h"
#include "files/picture_files.h"
#include "ui/desks/palette_desk.h"
#include "ui/windows/export_dialog.h"

namespace kelvo::ui {

class ExportDesk {
 public:
  // All of it outlives the desk; `window` is what dialogs belong to.
  ExportDesk(const files::PictureSurroundings& with, const PaletteDesk& palette, QWidget* window)
      : with_(with), palette_(palette), window_(window) {}

  // Asks for format and name.
  void Export();
  void CopyImage() const;
  // The picture as a C64 shows it, 320 x 200.
  QImage Image() const;

 private:
  app::Bytes BytesOf(const ExportChoice& choice) const;

  files::PictureSurroundings with_;
  const PaletteDesk& palette_;
  QWidget* window_;
};

}  // namespace kelvo::ui
