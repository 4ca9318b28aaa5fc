// Notices when another program changes a file or a folder.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace kelvo::ui {

class FileWatch : public QObject {
  Q_OBJECT

 public:
  FileWatch();

  // Watches the file or folder at `path` instead of the one before; an empty text watches none.
  void Follow(const QString& path);

 signals:
  // Something happened to it, and a moment has passed since. It may have been this program itself.
  void Touched();

 private:
  QString path_;
  QFileSystemWatcher watcher_;
  QTimer moment_;  // other programs write in several steps
};

}  // namespace kelvo::ui
