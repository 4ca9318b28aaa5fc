// Draws one of the editor's icons: make-icons DRAWING.svg FOLDER ENDING SIZE... writes FOLDER/SIZE/DRAWING.ENDING for
// each size, and beside it DRAWING@2x.ENDING for displays of twice the scale. ENDING is an image format's, or `rgba`:
// four bytes for each pixel and nothing else.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <iostream>

namespace {

bool WriteBytes(const QImage& image, const QString& file) {
  const QImage bytes = image.convertToFormat(QImage::Format_RGBA8888);
  QFile out(file);
  return out.open(QFile::WriteOnly) &&
         out.write(reinterpret_cast<const char*>(bytes.constBits()), bytes.sizeInBytes()) > 0;
}

bool Write(const QImage& image, const QString& file) {
  return file.endsWith(".rgba") ? WriteBytes(image, file) : image.save(file);
}

// True when the drawing could be read and its picture written. What reads SVG is one of Qt's plugins.
bool Draw(const QString& drawing, int side, const QString& file) {
  QImageReader reader(drawing, "svg");
  reader.setScaledSize({side, side});
  const QImage image = reader.read();
  if (!image.isNull() && Write(image, file)) return true;
  std::cerr << qPrintable(file) << " cannot be made: " << qPrintable(reader.errorString()) << '\n';
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 5) {
    std::cerr << "Usage: make-icons DRAWING.svg FOLDER ENDING SIZE...\n";
    return 2;
  }
  const QString& drawing = arguments[1];
  const QString ending = '.' + arguments[3];
  bool done = true;
  for (const QString& size : arguments.mid(4)) {
    const QDir folder(arguments[2] + '/' + size);
    const QString file = folder.filePath(QFileInfo(drawing).completeBaseName());
    done &= folder.mkpath(".") && Draw(drawing, size.toInt(), file + ending) &&
            Draw(drawing, 2 * size.toInt(), file + "@2x" + ending);
  }
  return done ? 0 : 1;
}
