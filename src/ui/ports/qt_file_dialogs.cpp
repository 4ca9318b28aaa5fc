#include "ui/ports/qt_file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStringList>

#include "ui/ports/qt_text.h"

namespace kelvo::ui {

QString ToQtFilter(std::string_view filter) {
  QStringList parts = ToQt(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString caption = parts[i].section(" (", 0, 0);
    filters << caption + " (" + parts[i + 1].replace(';', ' ') + ')';
  }
  return filters.join(";;");
}

QString StillThere(const QString& path) {
  QFileInfo place(path.endsWith(':') ? path + '/' : path);  // a drive, and not the folder last used on it
  while (!path.isEmpty() && !place.exists() && !place.isRoot()) place.setFile(place.absolutePath());
  return place.exists() ? place.absoluteFilePath() : QDir::homePath();
}

std::optional<files::ChosenFile> QtFileDialogs::SelectFile(const std::string& folder) {
  QFileDialog dialog(parent_, "Select file", StillThere(ToQt(folder)), ToQtFilter(files::OpenFilter()));
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const auto filter = dialog.nameFilters().indexOf(dialog.selectedNameFilter());
  return files::ChosenFile{FromQt(NativePath(dialog.selectedFiles().first())), static_cast<int>(filter) + 1};
}

std::optional<std::string> QtFileDialogs::SaveAs(const std::string& path) {
  QFileDialog dialog(parent_, "Save Kelvo-file", {}, ToQtFilter("Kelvo-files (*.kvp)|*.kvp"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("kvp");
  const QFileInfo proposal(ToQt(path));
  dialog.setDirectory(StillThere(proposal.absolutePath()));
  dialog.selectFile(proposal.completeBaseName() + ".kvp");
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return FromQt(NativePath(dialog.selectedFiles().first()));
}

}  // namespace kelvo::ui
