#include "ui/widgets/icons.h"

#include <QDir>

namespace kelvo::ui {

QIcon IconNamed(const QString& name) {
  const QDir sizes(":/icons");
  QIcon icon;
  // Told the format, Qt does not try all of its readers on each file.
  for (const QString& size : sizes.entryList()) {
    icon.addPixmap(QPixmap(sizes.filePath(size + '/' + name + ".png"), "PNG"));
  }
  return icon;
}

}  // namespace kelvo::ui
