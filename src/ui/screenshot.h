// "Save picture as screenshot": the full view as an image file.
#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace kelvo::ui {

// Asks for a name, a format and a size, and saves `picture` (320 x 200). Throws std::runtime_error when that fails.
void mnuSaveJPG(const QImage& picture, const QString& proposal, QWidget* parent);

// The formats and sizes of the dialog, as its filter texts: PNG, JPEG and BMP at 1x, 2x and 4x.
QStringList ScreenshotFilters();

// Saves `picture` as the filter at `filter` says, to `path`, whose ending is added where it has none. Throws
// std::runtime_error when the file cannot be written.
void SaveScreenshot(const QImage& picture, const QString& path, qsizetype filter);

}  // namespace kelvo::ui
