#include "ui/widgets/icons.h"

#include <QDir>

#include "model/palette.h"

namespace kelvo::ui {
namespace {

constexpr int kColourSide = 14;

}  // namespace

QIcon IconNamed(const QString& name) {
  const QDir sizes(":/icons");
  QIcon icon;
  // Told the format, Qt does not try all of its readers on each file.
  for (const QString& size : sizes.entryList()) {
    icon.addPixmap(QPixmap(sizes.filePath(size + '/' + name + ".png"), "PNG"));
  }
  return icon;
}

QIcon ColourIcon(model::C64Colour colour) {
  QPixmap square(kColourSide, kColourSide);
  square.fill(QColor::fromRgb(model::SurfaceColour(colour)));
  return square;
}

}  // namespace kelvo::ui
