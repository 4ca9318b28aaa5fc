// Animations as GIF files, read back by Qt, which has a reader of its own: every pixel, every time, without an end.
#include "images/animation_gif.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>

#include "images/picture_png.h"
#include "model/named_palettes.h"
#include "support/pictures.h"

namespace kelvo::images {
namespace {

TEST(AnimationGif, HoldsEachFrameForItsTime) {
  if (!QImageReader::supportedImageFormats().contains("gif")) GTEST_SKIP() << "this Qt reads no GIF";
  const files::Palette palette{"Pepto", model::kNamedPalettes[1].colours};
  // Much and little that packs, parts that change in corners and nowhere.
  std::vector<model::PictureImage> pictures{support::RandomPicture(1), support::BlotchyPicture(2)};
  for (const int cell : {1, 40, 1000, 1000, 961}) {
    pictures.push_back(pictures.back());
    support::SetCell(pictures.back(), cell, support::kAllSlots, 1, 2, 3);
  }
  for (const int scale : {1, 2, 8}) {
    SCOPED_TRACE(scale);
    AnimationGif gif(GifLoop::kForEver);
    int hundredths = 2;
    for (const auto& picture : pictures) gif.Add(ImageOf(picture, palette, ImageSize::kBorder, scale), hundredths += 2);
    const app::Bytes bytes = gif.Finished();
    QByteArray data(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&data);
    QImageReader reader(&buffer, "gif");
    EXPECT_EQ(reader.imageCount(), static_cast<int>(pictures.size()));
    hundredths = 2;
    for (const auto& picture : pictures) {
      const QImage wanted = ImageOf(picture, palette, ImageSize::kBorder, scale);
      ASSERT_EQ(reader.read().convertToFormat(QImage::Format_RGB32), wanted.convertToFormat(QImage::Format_RGB32));
      EXPECT_EQ(reader.nextImageDelay(), 10 * (hundredths += 2));
    }
    EXPECT_EQ(reader.loopCount(), -1);
  }
}

TEST(AnimationGif, TakesFramesOfOneKindOnly) {
  const files::Palette palette{"Kelvo", model::kSurfaceColours};
  const QImage image = ImageOf({}, palette, ImageSize::kPixels, 1);
  AnimationGif gif(GifLoop::kForEver);
  EXPECT_THROW(gif.Finished(), std::runtime_error);
  gif.Add(image, AnimationGif::kMostHundredths);
  const app::Bytes before = gif.Finished();
  EXPECT_THROW(gif.Add(image, 0), std::runtime_error);
  EXPECT_THROW(gif.Add(image, AnimationGif::kMostHundredths + 1), std::runtime_error);
  for (const QImage& wrong : {ImageOf({}, palette, ImageSize::kPixels, 2), image.convertToFormat(QImage::Format_RGB32),
                              ImageOf({}, {"Pepto", model::kNamedPalettes[1].colours}, ImageSize::kPixels, 1)}) {
    EXPECT_THROW(gif.Add(wrong, 1), std::runtime_error);
  }
  EXPECT_EQ(gif.Finished(), before);
}

}  // namespace
}  // namespace kelvo::images
