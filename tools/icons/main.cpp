// Draws one of the editor's icons: make-icons DRAWING.svg FOLDER SIZE... writes FOLDER/SIZE/DRAWING.png for each size,
// and beside it the one for displays of twice the scale, under the name by which Qt finds it.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <iostream>

namespace {

// True when the drawing could be read and its picture written. What reads SVG is one of Qt's plugins.
bool Draw(const QString& drawing, int side, const QString& file) {
  QImageReader reader(drawing, "svg");
  reader.setScaledSize({side, side});
  const QImage image = reader.read();
  if (!image.isNull() && image.save(file)) return true;
  std::cerr << qPrintable(file) << " cannot be made: " << qPrintable(reader.errorString()) << '\n';
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 4) {
    std::cerr << "Usage: make-icons DRAWING.svg FOLDER SIZE...\n";
    return 2;
  }
  const QString& drawing = arguments[1];
  bool done = true;
  for (const QString& size : arguments.mid(3)) {
    const QDir folder(arguments[2] + '/' + size);
    const QString file = folder.filePath(QFileInfo(drawing).completeBaseName());
    done &= folder.mkpath(".") && Draw(drawing, size.toInt(), file + ".png") &&
            Draw(drawing, 2 * size.toInt(), file + "@2x.png");
  }
  return done ? 0 : 1;
}
