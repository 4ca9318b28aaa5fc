// The ways in which images come to Kelvo: a file that is chosen, dropped or named in the prompt, and images without a
// file, dropped or pasted.
#pragma once

#include <QMimeData>
#include <QWidget>
#include <filesystem>

#include "files/picture_files.h"
#include "ui/desks/painting_desk.h"
#include "ui/windows/import_worker.h"

namespace kelvo::ui {

class ImportDesk {
 public:
  // All of it outlives the desk; `window` is what dialogs belong to.
  ImportDesk(const files::PictureSurroundings& with, PaintingDesk& painting, app::StatusLine& status,
             app::WaitPointer& pointer, QWidget* window)
      : with_(with), painting_(painting), status_(status), pointer_(pointer), window_(window) {}

  // Asks for the file, then how.
  void Import();
  void ImportFile(const std::filesystem::path& file);
  // Whether there is an image in what is dropped or pasted; and imports it, as soon as who gave it need not wait.
  static bool IsImage(const QMimeData& data);
  void ImportData(const QMimeData& data);
  void Paste();

  // Without a question, as it is proposed for such an image. False for one that cannot be read, which is logged.
  bool ImportAsProposed(const std::filesystem::path& file);

 private:
  void ImportBy(ImportWorker::Read read, const QString& name);

  files::PictureSurroundings with_;
  PaintingDesk& painting_;
  app::StatusLine& status_;
  app::WaitPointer& pointer_;
  QWidget* window_;
};

}  // namespace kelvo::ui
