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
constexpr int kSmallest = 100;                     // how much a PNG is packed
constexpr int kDotsPerMetre = 3780;                // as on a usual screen, whichever there is: a file says so
constexpr int kPalWidth = 936, kPalHeight = 1000;  // of a pixel

const Frame& FrameOf(ImageSize size) {
  return kFrames.at(static_cast<std::size_t>(size));
}

// All of it in one colour.
QImage BlankImage(const Frame& frame, int scale, model::C64Colour colour, const files::Palette& palette) {
  QImage image(frame.width * scale, frame.height * scale, QImage::Format_Indexed8);
  image.setColorTable({palette.colours.begin(), palette.colours.end()});
  image.setDotsPerMeterX(kDotsPerMetre);
  image.setDotsPerMeterY(kDotsPerMetre);
  image.fill(colour.Byte());
  image.setText(kPaletteKey, QString::fromStdString(palette.name));
  return image;
}

}  // namespace

QImage ImageOf(const PictureImage& picture, const files::Palette& palette, ImageSize size, int scale) {
  const Frame& frame = FrameOf(size);
  QImage image = BlankImage(frame, scale, picture.BackgroundColour, palette);
  for (int line = 0; line < PictureImage::kHeight * scale; ++line) {
    uchar* row = image.scanLine(frame.top * scale + line) + static_cast<std::ptrdiff_t>(frame.left) * scale;
    for (int x = 1; x <= PictureImage::kWidth; ++x) {
      row =
          std::fill_n(row, frame.pixel_width * scale, model::GetPixelData(picture, x, line / scale + 1).colour.Byte());
    }
  }
  return image;
}

QImage ImageOfScreen(std::span<const std::uint8_t> pixels, model::C64Colour border, const files::Palette& palette) {
  constexpr int kWidth = 320;
  const Frame& frame = FrameOf(ImageSize::kBorder);
  QImage image = BlankImage(frame, 1, border, palette);
  for (int line = frame.top; !pixels.empty(); ++line, pixels = pixels.subspan(kWidth)) {
    std::copy_n(pixels.begin(), kWidth, image.scanLine(line) + frame.left);
  }
  return image;
}

QImage AsHighAsOnPal(const QImage& image) {
  const int height = (image.height() * kPalHeight + kPalWidth / 2) / kPalWidth;
  QImage higher(image.width(), height, image.format());
  higher.setColorTable(image.colorTable());
  higher.setDotsPerMeterX(kDotsPerMetre);
  higher.setDotsPerMeterY(kDotsPerMetre);
  higher.setText(kPaletteKey, image.text(kPaletteKey));
  for (int line = 0; line < height; ++line) {
    std::copy_n(image.constScanLine(line * image.height() / height), image.bytesPerLine(), higher.scanLine(line));
  }
  return higher;
}

app::Bytes PngOf(const QImage& image) {
  QBuffer buffer;
  QImageWriter writer(&buffer, "png");
  writer.setCompression(kSmallest);
  if (!writer.write(image)) throw std::runtime_error("the image cannot be made: " + writer.errorString().toStdString());
  return {buffer.data().begin(), buffer.data().end()};
}

}  // namespace kelvo::images
