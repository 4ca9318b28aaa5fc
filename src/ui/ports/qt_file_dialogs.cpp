#include "ui/ports/qt_file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStringList>

#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

QString FilterOf(const files::PictureFormat& format) {
  return ToQt(format.caption) + " (" + ToQt(format.patterns) + ')';
}

QString OpenFilter() {
  QStringList filters;
  for (const files::PictureFormat& format : files::OfferedFormats()) filters << FilterOf(format);
  return filters.join(";;");
}

}  // namespace

QString StillThere(const QString& path) {
  QFileInfo place(path.endsWith(':') ? path + '/' : path);  // a drive, and not the folder last used on it
  while (!path.isEmpty() && !place.exists() && !place.isRoot()) place.setFile(place.absolutePath());
  return place.exists() ? place.absoluteFilePath() : QDir::homePath();
}

std::optional<files::ChosenFile> QtFileDialogs::SelectFile(const std::filesystem::path& folder,
                                                           files::FormatType type) {
  QFileDialog dialog(parent_, "Select file", StillThere(QtFromPath(folder)), OpenFilter());
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.selectNameFilter(dialog.nameFilters().value(type - 1));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const auto filter = dialog.nameFilters().indexOf(dialog.selectedNameFilter());
  return files::ChosenFile{PathFromQt(dialog.selectedFiles().first()), static_cast<int>(filter) + 1};
}

std::optional<std::filesystem::path> QtFileDialogs::SaveAs(const std::filesystem::path& path) {
  QFileDialog dialog(parent_, "Save Kelvo-file", {}, "Kelvo-files (*.kvp)");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("kvp");
  const QFileInfo proposal(QtFromPath(path));
  dialog.setDirectory(StillThere(proposal.absolutePath()));
  dialog.selectFile(proposal.completeBaseName() + ".kvp");
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return PathFromQt(dialog.selectedFiles().first());
}

}  // namespace kelvo::ui
