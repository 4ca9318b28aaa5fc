#include "ui/ports/file_watch.h"

namespace kelvo::ui {
namespace {

constexpr int kMomentMilliseconds = 300;

}  // namespace

FileWatch::FileWatch() {
  moment_.setSingleShot(true);
  moment_.setInterval(kMomentMilliseconds);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, &moment_, qOverload<>(&QTimer::start));
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, &moment_, qOverload<>(&QTimer::start));
  connect(&moment_, &QTimer::timeout, this, [this] {
    Follow(path_);  // a file that was replaced is another one for the system
    emit Touched();
  });
}

void FileWatch::Follow(const QString& path) {
  path_ = path;
  if (const QStringList before = watcher_.files() + watcher_.directories(); !before.isEmpty()) {
    watcher_.removePaths(before);
  }
  if (!path_.isEmpty()) watcher_.addPath(path_);
}

}  // namespace kelvo::ui
