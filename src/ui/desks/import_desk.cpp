#include "ui/desks/import_desk.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QTimer>
#include <QUrl>
#include <utility>

#include "convert/into_picture.h"
#include "images/image_reading.h"
#include "model/named_palettes.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_text.h"
#include "ui/windows/import_dialog.h"

namespace kelvo::ui {
namespace {

constexpr app::Setting kImageFolder{"Import", "Folder", ""};
constexpr auto kNoFile = "pasted";  // the name of an image that has none

QString ImageFilter() {
  QStringList patterns;
  for (const QByteArray& format : QImageReader::supportedImageFormats()) patterns << "*." + QString(format);
  return QString("Images (%1);;All files (*)").arg(patterns.join(' '));
}

// By its name alone: whether it can be read is found out and told later.
bool IsImageFile(const QString& file) {
  return QImageReader::supportedImageFormats().contains(QFileInfo(file).suffix().toLower().toUtf8());
}

// The one file that is meant; empty where there is none, or several.
QString FileIn(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

}  // namespace

void ImportDesk::Import() {
  const QString before = ToQt(with_.settings.Read(kImageFolder));
  QFileDialog dialog(window_, "Import",
                     StillThere(before.isEmpty() ? QtFromPath(with_.files.FolderForDialogs()) : before), ImageFilter());
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const std::filesystem::path file = PathFromQt(dialog.selectedFiles().first());
  with_.settings.Write(kImageFolder, app::TextFromPath(file.parent_path()));
  ImportFile(file);
}

void ImportDesk::ImportFile(const std::filesystem::path& file) {
  ImportBy([file](const std::stop_token& stop) { return images::ReadImage(file, stop); }, QtFromPath(file.filename()));
}

bool ImportDesk::IsImage(const QMimeData& data) {
  return IsImageFile(FileIn(data)) || (FileIn(data).isEmpty() && data.hasImage());
}

void ImportDesk::ImportData(const QMimeData& data) {
  const QString file = FileIn(data);
  const auto image = file.isEmpty() ? data.imageData().value<QImage>() : QImage();
  QTimer::singleShot(0, window_, [this, file, image] {
    if (!file.isEmpty()) return ImportFile(PathFromQt(file));
    ImportBy([image](const std::stop_token&) { return images::RgbOf(image); }, kNoFile);
  });
}

void ImportDesk::Paste() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr || !IsImage(*data)) return status_.Warn("There is no image on the clipboard");
  ImportData(*data);
}

void ImportDesk::ImportBy(ImportWorker::Read read, const QString& name) {
  ImportDialog dialog(std::move(read), name, with_.document.picture, with_.settings, window_);
  const bool is_accepted = dialog.exec() == QDialog::Accepted;
  if (!dialog.Failure().isEmpty()) {
    with_.log.Write("MDIFormMenu_Import: " + FromQt(dialog.Failure()));
    return with_.messages.Warn(FromQt(name + " cannot be imported.\n" + dialog.Failure()));
  }
  if (!is_accepted) return;
  if (dialog.IsPart()) return painting_.TakeCells(dialog.Picture(), "Undo import " + FromQt(name));
  with_.files.TakeImported(dialog.Picture(), PathFromQt(name));
}

bool ImportDesk::ImportAsProposed(const std::filesystem::path& file) {
  const app::WaitScope wait(pointer_);
  return app::Guarded(with_.log, "MDIFormMenu_Import", [&] {
    convert::Conversion conversion(images::ReadImage(file), model::NamedColours());
    convert::Wishes wishes;
    wishes.palette = model::ShownPalette::Colours();
    wishes.grain = conversion.ProposedDither().grain;
    app::NoProgress nobody_watches;
    with_.files.TakeImported(convert::PictureOf(conversion.Convert(wishes, nobody_watches).map), file);
  });
}

}  // namespace kelvo::ui
