#include "ui/windows/screenshot.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>
#include <array>
#include <stdexcept>

#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_messages.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

struct ImageFormat {
  const char* caption;
  const char* pattern;
  const char* ending;
};

constexpr std::array<ImageFormat, 3> kFormats{{
    {"PNG image", "*.png", "png"},
    {"JPEG image", "*.jpg *.jpeg", "jpg"},
    {"BMP image", "*.bmp", "bmp"},
}};

constexpr std::array<int, 3> kSizes{1, 2, 4};
constexpr int kBestQuality = 100;
constexpr int kMostPacked = 0;  // to Qt the quality of a PNG is how little it is packed; the pixels are the same

// What a filter's position in the dialog stands for.
const ImageFormat& FormatOf(qsizetype filter) {
  return kFormats.at(static_cast<std::size_t>(filter) / kSizes.size());
}
int SizeOf(qsizetype filter) {
  return kSizes.at(static_cast<std::size_t>(filter) % kSizes.size());
}

QStringList Filters() {
  QStringList filters;
  for (const ImageFormat& format : kFormats) {
    for (const int size : kSizes) {
      filters << QString("%1, %2× (%3)").arg(format.caption).arg(size).arg(format.pattern);
    }
  }
  return filters;
}

bool MayReplace(const QString& path, QWidget* parent) {
  return !QFileInfo::exists(path) || QtMessages(parent).Ask(FromQt(NativePath(path) + " exists already. Replace it?"));
}

}  // namespace

QString WithImageEnding(const QString& path, const QString& ending) {
  static const QStringList known{"png", "jpg", "jpeg", "bmp"};
  return known.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive) ? path : path + '.' + ending;
}

void SaveScreenshot(const QImage& picture, const QString& path, int size) {
  QSaveFile file(path);
  const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
  const QImage scaled = picture.convertToFormat(QImage::Format_Indexed8).scaled(picture.size() * size);
  const int quality = format == "png" ? kMostPacked : kBestQuality;
  if (!file.open(QIODevice::WriteOnly) || !scaled.save(&file, format.constData(), quality) || !file.commit()) {
    throw std::runtime_error(FromQt(NativePath(file.fileName()) + ": it cannot be written: " + file.errorString()));
  }
}

void mnuSaveJPG(const QImage& picture, const QString& proposal, QWidget* parent) {
  QFileDialog dialog(parent, "Save picture as screenshot", StillThere(QFileInfo(proposal).absolutePath()));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(Filters());
  const auto filter = [&dialog] { return dialog.nameFilters().indexOf(dialog.selectedNameFilter()); };
  const auto take_ending = [&] { dialog.setDefaultSuffix(FormatOf(filter()).ending); };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, take_ending);
  take_ending();
  dialog.selectFile(QFileInfo(proposal).completeBaseName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const QString chosen = dialog.selectedFiles().first();  // the dialog has asked before a file of this name is replaced
  const QString path = WithImageEnding(chosen, FormatOf(filter()).ending);
  if (path == chosen || MayReplace(path, parent)) SaveScreenshot(picture, path, SizeOf(filter()));
}

}  // namespace kelvo::ui
