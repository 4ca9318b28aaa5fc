// The common open and save dialogs.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include "files/file_ports.h"

namespace kelvo::ui {

// Where a dialog begins for a stored `path`: there, or in the nearest folder above it that still exists; without a path
// in the user's folder.
QString StillThere(const QString& path);

class QtFileDialogs final : public files::FileDialogs {
 public:
  explicit QtFileDialogs(QWidget* parent) : parent_(parent) {}

  std::optional<files::ChosenFile> SelectFile(const std::filesystem::path& folder, files::FormatType type) override;
  std::optional<std::filesystem::path> SaveAs(const std::filesystem::path& path) override;

 private:
  QPointer<QWidget> parent_;
};

}  // namespace kelvo::ui
