#include "images/picture_png.h"

#include <QBuffer>
#include <QImageWriter>
#include <algorithm>
#include <array>
#include <stdexcept>

#include "model/pixel_colour.h"

namespace kelvo::images {
namespace {

using model::PictureImage;

struct Frame {
  int width, height, left, top, pixel_width;
};

constexpr std::array<Frame, 3> kFrames{{{160, 200, 0, 0, 1}, {320, 200, 0, 0, 2}, {384, 272, 32, 35, 2}}};
constexpr int kSmallest = 100;  // how much a PNG is packed

}  // namespace

QImage ImageOf(const PictureImage& picture, const files::Palette& palette, ImageSize size, int scale) {
  const Frame& frame = kFrames.at(static_cast<std::size_t>(size));
  QImage image(frame.width * scale, frame.height * scale, QImage::Format_Indexed8);
  image.setColorTable({palette.colours.begin(), palette.colours.end()});
  image.fill(picture.BackgroundColour.Byte());
  for (int line = 0; line < PictureImage::kHeight * scale; ++line) {
    uchar* row = image.scanLine(frame.top * scale + line) + static_cast<std::ptrdiff_t>(frame.left) * scale;
    for (int x = 1; x <= PictureImage::kWidth; ++x) {
      row =
          std::fill_n(row, frame.pixel_width * scale, model::GetPixelData(picture, x, line / scale + 1).colour.Byte());
    }
  }
  image.setText(kPaletteKey, QString::fromStdString(palette.name));
  return image;
}

app::Bytes PngOf(const QImage& image) {
  QBuffer buffer;
  QImageWriter writer(&buffer, "png");
  writer.setCompression(kSmallest);
  if (!writer.write(image)) throw std::runtime_error("the image cannot be made: " + writer.errorString().toStdString());
  return {buffer.data().begin(), buffer.data().end()};
}

}  // namespace kelvo::images
