#include "ui/desks/recent_menu.h"

#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

void Fill(QMenu* menu, files::PictureFiles& files) {
  menu->clear();
  const auto paths = files.RecentPaths();
  for (const std::filesystem::path& path : paths) {
    QAction* entry = menu->addAction(QtFromPath(path).replace('&', "&&"));
    entry->setObjectName(QString("mnuRecent_%1").arg(menu->actions().size() - 1));
    QObject::connect(entry, &QAction::triggered, menu, [&files, path] { files.OpenRecent(path); });
  }
  if (paths.empty()) menu->addAction("<none>")->setEnabled(false);
}

}  // namespace

void ShowRecentFiles(QMenu* menu, files::PictureFiles& files) {
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &files] { Fill(menu, files); });
}

}  // namespace kelvo::ui
