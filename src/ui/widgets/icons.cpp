#include "ui/widgets/icons.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include "model/palette.h"

namespace kelvo::ui {
namespace {

constexpr int kColourSide = 14;

// The drawing as tools/icons left it, four bytes for each pixel: whatever reads an image file first loads Qt's plugins
// for all of them. Null where there is none.
QPixmap Drawing(const QString& name, int side) {
  const int scale = qApp->devicePixelRatio() > 1 ? 2 : 1;
  QFile file(QString(":/icons/%1/%2%3.rgba").arg(side).arg(name, scale == 2 ? "@2x" : ""));
  if (!file.open(QFile::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  const auto* pixels = reinterpret_cast<const uchar*>(bytes.constData());
  QPixmap pixmap = QPixmap::fromImage(QImage(pixels, side * scale, side * scale, QImage::Format_RGBA8888));
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}

}  // namespace

QIcon IconNamed(const QString& name) {
  QIcon icon;
  for (const QString& size : QDir(":/icons").entryList()) icon.addPixmap(Drawing(name, size.toInt()));
  return icon;
}

QIcon ColourIcon(model::C64Colour colour) {
  QPixmap square(kColourSide, kColourSide);
  square.fill(QColor::fromRgb(model::SurfaceColour(colour)));
  return square;
}

}  // namespace kelvo::ui
