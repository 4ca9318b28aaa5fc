#include "ui/screenshot.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>
#include <QStringList>
#include <array>
#include <stdexcept>

#include "ui/qt_text.h"

namespace kelvo::ui {
namespace {

struct ImageFormat {
  const char* caption;
  const char* pattern;
  const char* ending;
  const char* qt_name;
};

constexpr std::array<ImageFormat, 3> kFormats{{
    {"PNG image", "*.png", ".png", "PNG"},
    {"JPEG image", "*.jpg *.jpeg", ".jpg", "JPG"},
    {"BMP image", "*.bmp", ".bmp", "BMP"},
}};

constexpr std::array<int, 3> kSizes{1, 2, 4};
constexpr int kBestQuality = 100;

}  // namespace

QStringList ScreenshotFilters() {
  QStringList filters;
  for (const ImageFormat& format : kFormats) {
    for (const int size : kSizes) {
      filters << QString("%1, %2× (%3)").arg(format.caption).arg(size).arg(format.pattern);
    }
  }
  return filters;
}

void SaveScreenshot(const QImage& picture, const QString& path, qsizetype filter) {
  const ImageFormat& format = kFormats.at(static_cast<std::size_t>(filter) / kSizes.size());
  const int size = kSizes.at(static_cast<std::size_t>(filter) % kSizes.size());
  QSaveFile file(QFileInfo(path).suffix().isEmpty() ? path + format.ending : path);
  QImage scaled(picture.size() * size, QImage::Format_RGB32);
  QPainter(&scaled).drawImage(scaled.rect(), picture);
  if (!file.open(QIODevice::WriteOnly) || !scaled.save(&file, format.qt_name, kBestQuality) || !file.commit()) {
    throw std::runtime_error(FromQt(file.fileName() + ": it cannot be written: " + file.errorString()));
  }
}

void mnuSaveJPG(const QImage& picture, const QString& proposal, QWidget* parent) {
  QFileDialog dialog(parent, "Save picture as screenshot", QFileInfo(proposal).absolutePath());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(ScreenshotFilters());
  dialog.selectFile(QFileInfo(proposal).completeBaseName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  SaveScreenshot(picture, dialog.selectedFiles().first(), dialog.nameFilters().indexOf(dialog.selectedNameFilter()));
}

}  // namespace kelvo::ui
