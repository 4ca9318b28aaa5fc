#include "images/animation_gif.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <new>
#include <span>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace kelvo::images {
namespace {

constexpr int kColours = 16, kColourBits = 4;
constexpr std::uint8_t kTrailer = 0x3B;

// Called by giflib, which knows no exceptions.
int Append(GifFileType* gif, const GifByteType* data, int size) noexcept {
  try {
    auto& bytes = *static_cast<app::Bytes*>(gif->UserData);
    bytes.insert(bytes.end(), data, data + size);
    return size;
  } catch (const std::bad_alloc&) {
    return 0;
  }
}

// What fails is memory alone.
void Require(int result) {
  if (result != GIF_OK) throw std::bad_alloc();
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

}  // namespace

AnimationGif::AnimationGif(GifLoop loop) : loop_(loop), gif_(EGifOpen(&bytes_, Append, nullptr)) {
  if (gif_ == nullptr) throw std::bad_alloc();
  EGifSetGifVersion(gif_, true);
}

AnimationGif::~AnimationGif() {
  EGifCloseFile(gif_, nullptr);
}

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
  PutTime(hundredths);
  PutPart(image, is_first ? image.rect() : DifferingPart(before_, image));
  before_ = image;
}

app::Bytes AnimationGif::Finished() const {
  if (bytes_.empty()) throw std::runtime_error("an animation without frames makes no GIF");
  app::Bytes bytes = bytes_;
  bytes.push_back(kTrailer);
  return bytes;
}

void AnimationGif::PutHeader(const QImage& image) {
  std::array<GifColorType, kColours> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    const QRgb colour = image.color(static_cast<int>(i));
    table.at(i) = {static_cast<GifByteType>(qRed(colour)), static_cast<GifByteType>(qGreen(colour)),
                   static_cast<GifByteType>(qBlue(colour))};
  }
  const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> colours(GifMakeMapObject(kColours, table.data()),
                                                                             GifFreeMapObject);
  if (!colours) throw std::bad_alloc();
  Require(EGifPutScreenDesc(gif_, image.width(), image.height(), kColourBits, 0, colours.get()));
  if (loop_ == GifLoop::kForEver) PutLoop();
}

void AnimationGif::PutLoop() {
  constexpr std::string_view kName = "NETSCAPE2.0", kForEver{"\x01\x00\x00", 3};
  Require(EGifPutExtensionLeader(gif_, APPLICATION_EXT_FUNC_CODE));
  for (const std::string_view block : {kName, kForEver}) {
    Require(EGifPutExtensionBlock(gif_, static_cast<int>(block.size()), block.data()));
  }
  Require(EGifPutExtensionTrailer(gif_));
}

void AnimationGif::PutTime(int hundredths) {
  constexpr std::size_t kBytes = 4;
  const GraphicsControlBlock control{DISPOSE_DO_NOT, false, hundredths, NO_TRANSPARENT_COLOR};
  std::array<GifByteType, kBytes> bytes{};
  EGifGCBToExtension(&control, bytes.data());
  Require(EGifPutExtension(gif_, GRAPHICS_EXT_FUNC_CODE, kBytes, bytes.data()));
}

void AnimationGif::PutPart(const QImage& image, const QRect& part) {
  Require(EGifPutImageDesc(gif_, part.x(), part.y(), part.width(), part.height(), false, nullptr));
  for (int y = part.top(); y <= part.bottom(); ++y) {
    const auto row = Row(image, y).subspan(static_cast<std::size_t>(part.x()), static_cast<std::size_t>(part.width()));
    std::vector<GifPixelType> pixels(row.begin(), row.end());  // giflib writes into them
    Require(EGifPutLine(gif_, pixels.data(), part.width()));
  }
}

}  // namespace kelvo::images
