// An animation as a GIF file: each frame in the sixteen colours of a palette, for its time.
//
//   AnimationGif gif(GifLoop::kForEver);
//   for (const auto& picture : pictures) gif.Add(ImageOf(picture, palette, ImageSize::kScreen, 2), 4);
//   app::WriteWholeFile(path, gif.Finished());
#pragma once

#include <QImage>
#include <memory>

#include "app/bytes.h"

struct GifFileType;

namespace kelvo::images {

enum class GifLoop { kForEver, kOnce };

class AnimationGif {
 public:
  static constexpr int kMostHundredths = 65535;

  // Throws std::bad_alloc.
  explicit AnimationGif(GifLoop loop);
  ~AnimationGif();
  AnimationGif(const AnimationGif&) = delete;
  AnimationGif& operator=(const AnimationGif&) = delete;

  // `image` is one of ImageOf(), of the same size and palette as those before, and is shown for `hundredths`
  // (1..kMostHundredths) of a second; programs that show GIFs take 1 for longer. Of a frame only the rectangle that
  // differs from the one before is kept. Throws std::runtime_error for another image or time.
  void Add(const QImage& image, int hundredths);

  // The file. Throws std::runtime_error when nothing was added.
  app::Bytes Finished() const;

 private:
  void PutHeader(const QImage& image);
  void PutLoop();
  void PutTime(int hundredths);
  void PutPart(const QImage& image, const QRect& part);

  GifLoop loop_;
  QImage before_;
  app::Bytes bytes_;
  GifFileType* gif_;  // writes them
};

}  // namespace kelvo::images
