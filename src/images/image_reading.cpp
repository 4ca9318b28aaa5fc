#include "images/image_reading.h"

#include <QBuffer>
#include <QImageReader>
#include <cstring>
#include <utility>

#include "app/whole_file.h"

namespace kelvo::images {
namespace {

constexpr std::uintmax_t kMostFileBytes = std::uintmax_t{1} << 30;
constexpr int kBytesOfPixel = 4;
constexpr int kMegabyte = 1 << 20;
constexpr QSize kDrawingSize(1280, 800);  // four screens a side: enough to take the mean of

// Bytes that cannot be read any more after a stop: then the reader gives up.
class StoppableBuffer : public QBuffer {
 public:
  explicit StoppableBuffer(std::stop_token stop) : stop_(std::move(stop)) {}

 protected:
  qint64 readData(char* to, qint64 most) override { return stop_.stop_requested() ? -1 : QBuffer::readData(to, most); }

 private:
  std::stop_token stop_;
};

void RefuseTooLarge(QSize size) {
  const qint64 pixels = qint64{size.width()} * size.height();
  if (pixels <= kMostPixels) return;
  throw ImageError("the image is too large: " + std::to_string(size.width()) + " x " + std::to_string(size.height()) +
                   " pixels, and at most " + std::to_string(kMostPixels / kMegabyte) + " million can be read");
}

QImage Read(QIODevice& device) {
  // The size is judged here: Qt's own bound is lower.
  QImageReader::setAllocationLimit(static_cast<int>(kMostPixels / kMegabyte * kBytesOfPixel * 2));
  QImageReader reader(&device);
  reader.setAutoTransform(true);
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  if (reader.format() == "svg" || reader.format() == "svgz") {
    reader.setScaledSize(size.scaled(kDrawingSize, Qt::KeepAspectRatio).expandedTo({1, 1}));
  } else {
    RefuseTooLarge(size);
  }
  QImage image = reader.read();
  if (image.isNull()) throw ImageError("no image can be read: " + reader.errorString().toStdString());
  return image;
}

}  // namespace

convert::RgbImage ReadImage(const QByteArray& bytes, const std::stop_token& stop) {
  StoppableBuffer buffer(stop);
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  return RgbOf(Read(buffer));
}

convert::RgbImage ReadImage(const std::filesystem::path& file, const std::stop_token& stop) {
  const app::Bytes bytes = app::ReadWholeFile(file, kMostFileBytes);
  return ReadImage(
      QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())), stop);
}

convert::RgbImage RgbOf(QImage image) {
  RefuseTooLarge(image.size());
  if (image.isNull()) throw ImageError("the image is empty");
  const QImage argb = std::move(image).convertToFormat(QImage::Format_ARGB32);  // most are so in their own memory
  if (argb.isNull()) throw ImageError("there is not enough memory for the image");
  convert::RgbImage rgb{argb.width(), argb.height(), {}};
  rgb.pixels.resize(static_cast<std::size_t>(rgb.width) * static_cast<std::size_t>(rgb.height));
  for (int y = 0; y < rgb.height; ++y) {
    std::memcpy(&rgb.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(rgb.width)], argb.constScanLine(y),
                static_cast<std::size_t>(rgb.width) * sizeof(std::uint32_t));
  }
  return rgb;
}

}  // namespace kelvo::images
