// "Save picture as screenshot": the full view as an image file.
#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace kelvo::ui {

// Asks for a name, a format and a size, and saves `picture` (320 x 200). Throws std::runtime_error when that fails.
void mnuSaveJPG(const QImage& picture, const QString& proposal, QWidget* parent);

// `path` where its ending is an image format's: png, jpg, jpeg or bmp; else with `.` and `ending` behind it.
QString WithImageEnding(const QString& path, const QString& ending);

// Saves `picture` at `size` times its own to `path`, whose ending says the format. Throws std::runtime_error when the
// file cannot be written.
void SaveScreenshot(const QImage& picture, const QString& path, int size);

}  // namespace kelvo::ui
