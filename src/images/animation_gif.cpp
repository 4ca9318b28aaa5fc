#include "images/animation_gif.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string_view>

#include "images/lzw.h"

namespace kelvo::images {
namespace {

constexpr int kColours = 1 << kPixelBits;
constexpr std::size_t kLargestBlock = 255;
constexpr std::uint8_t kGlobalPalette = 0x80 | (kPixelBits - 1) << 4 | (kPixelBits - 1);
constexpr std::uint8_t kExtension = 0x21, kTimeOfFrame = 0xF9, kStays = 1 << 2, kImage = 0x2C, kTrailer = 0x3B;
constexpr std::string_view kLoopForEver{"\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19};

void PutWord(int word, app::Bytes& bytes) {
  bytes.push_back(static_cast<std::uint8_t>(word));
  bytes.push_back(static_cast<std::uint8_t>(word >> 8));
}

void PutText(std::string_view text, app::Bytes& bytes) {
  bytes.insert(bytes.end(), text.begin(), text.end());
}

void PutBlocks(std::span<const std::uint8_t> data, app::Bytes& bytes) {
  while (!data.empty()) {
    const auto block = data.first(std::min(data.size(), kLargestBlock));
    bytes.push_back(static_cast<std::uint8_t>(block.size()));
    bytes.insert(bytes.end(), block.begin(), block.end());
    data = data.subspan(block.size());
  }
  bytes.push_back(0);
}

std::span<const std::uint8_t> Row(const QImage& image, int y) {
  return {image.constScanLine(y), static_cast<std::size_t>(image.width())};
}

// The smallest rectangle outside which both look the same; a pixel when they are the same all over.
QRect DifferingPart(const QImage& before, const QImage& after) {
  QRect part;
  for (int y = 0; y < after.height(); ++y) {
    const auto one = Row(before, y), other = Row(after, y);
    const auto left = std::mismatch(one.begin(), one.end(), other.begin()).first - one.begin();
    if (left == std::ssize(one)) continue;
    const auto right = std::mismatch(one.rbegin(), one.rend(), other.rbegin()).first.base() - one.begin() - 1;
    part |= QRect(QPoint(static_cast<int>(left), y), QPoint(static_cast<int>(right), y));
  }
  return part.isEmpty() ? QRect(0, 0, 1, 1) : part;
}

void PutPart(const QImage& image, const QRect& part, app::Bytes& bytes) {
  bytes.push_back(kImage);
  for (const int number : {part.x(), part.y(), part.width(), part.height()}) PutWord(number, bytes);
  bytes.insert(bytes.end(), {0, kPixelBits});  // no palette of its own
  app::Bytes pixels;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    const auto row = Row(image, y).subspan(static_cast<std::size_t>(part.x()), static_cast<std::size_t>(part.width()));
    pixels.insert(pixels.end(), row.begin(), row.end());
  }
  PutBlocks(LzwPacked(pixels), bytes);
}

}  // namespace

void AnimationGif::Add(const QImage& image, int hundredths) {
  if (hundredths < 1 || hundredths > kMostHundredths) throw std::runtime_error("a GIF has no such time for a frame");
  if (image.format() != QImage::Format_Indexed8 || image.colorCount() != kColours) {
    throw std::runtime_error("a frame is to have sixteen colors");
  }
  const bool is_first = before_.isNull();
  if (is_first) PutHeader(image);
  if (!is_first && (image.size() != before_.size() || image.colorTable() != before_.colorTable())) {
    throw std::runtime_error("frames are to have one size and one palette");
  }
  bytes_.insert(bytes_.end(), {kExtension, kTimeOfFrame, 4, kStays});
  PutWord(hundredths, bytes_);
  bytes_.insert(bytes_.end(), {0, 0});  // nothing is transparent
  PutPart(image, is_first ? image.rect() : DifferingPart(before_, image), bytes_);
  before_ = image;
}

app::Bytes AnimationGif::Finished() const {
  if (bytes_.empty()) throw std::runtime_error("an animation without frames makes no GIF");
  app::Bytes bytes = bytes_;
  bytes.push_back(kTrailer);
  return bytes;
}

void AnimationGif::PutHeader(const QImage& image) {
  PutText("GIF89a", bytes_);
  PutWord(image.width(), bytes_);
  PutWord(image.height(), bytes_);
  bytes_.insert(bytes_.end(), {kGlobalPalette, 0, 0});
  for (const QRgb colour : image.colorTable()) {
    for (const int part : {qRed(colour), qGreen(colour), qBlue(colour)}) {
      bytes_.push_back(static_cast<std::uint8_t>(part));
    }
  }
  PutText(kLoopForEver, bytes_);
}

}  // namespace kelvo::images
