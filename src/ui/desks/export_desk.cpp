#include "ui/desks/export_desk.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

void ExportDesk::Export() {
  ExportDialog dialog(window_);
  if (dialog.exec() != QDialog::Accepted) return;
  const ExportChoice choice = dialog.Choice();
  const std::filesystem::path& current = with_.document.file.CurrentFilePath;
  QFileDialog save(window_, "Export", StillThere(QtFromPath(with_.files.FolderForDialogs())),
                   QString("*.%1").arg(choice.Ending()));
  save.setAcceptMode(QFileDialog::AcceptSave);
  save.setDefaultSuffix(choice.Ending());
  save.selectFile(current.empty() ? "unnamed" : QtFromPath(current.stem()));
  if (save.exec() != QDialog::Accepted || save.selectedFiles().isEmpty()) return;
  app::Guarded(
      with_.log, "MDIFormMenu_Export",
      [&] { app::WriteWholeFile(PathFromQt(save.selectedFiles().first()), BytesOf(choice)); },
      [this](const std::exception& error) { with_.messages.Warn(error.what()); });
}

app::Bytes ExportDesk::BytesOf(const ExportChoice& choice) const {
  const model::PictureImage& picture = with_.document.picture;
  if (choice.format != nullptr) return files::EncodeAs(files::FormatOf(choice.format->type), picture);
  return images::PngOf(images::ImageOf(picture, palette_.Shown(), choice.size, choice.scale));
}

QImage ExportDesk::Image() const {
  return images::ImageOf(with_.document.picture, palette_.Shown(), images::ImageSize::kScreen, 1);
}

void ExportDesk::CopyImage() const {
  QGuiApplication::clipboard()->setImage(Image());
}

}  // namespace kelvo::ui
