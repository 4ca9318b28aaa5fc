#include "animations.h"

#include <cmath>

#include "canvas.h"
#include "model/pixel_colour.h"
#include "pictures.h"

namespace kelvo::samples {
namespace {

using model::PictureImage;

Canvas CanvasOf(const PictureImage& picture) {
  Canvas canvas(kBlack);
  for (int y = 0; y < PictureImage::kHeight; ++y) {
    for (int x = 0; x < PictureImage::kWidth; ++x) {
      canvas.Put(x, y, static_cast<Ink>(model::GetPixelData(picture, x + 1, y + 1).colour.Number()));
    }
  }
  return canvas;
}

// A limb of `length` lines that hangs from a joint, `lean` pixels a line to the side. Returns where it ends.
int DrawLimb(Canvas& canvas, double x, int y, int length, double lean, Ink ink) {
  for (int line = 0; line < length; ++line) canvas.Box(static_cast<int>(x + lean * line), y + line, 3, 1, ink);
  return static_cast<int>(x + lean * length);
}

void DrawWalker(Canvas& canvas, int x, double stride) {
  constexpr int kHead = 104, kShoulder = 116, kHip = 146, kKnee = 164, kArm = 24, kShin = 18;
  canvas.Box(x - 1, kHead, 7, 11, kLightRed);
  canvas.Box(x - 1, kHead, 7, 3, kBrown);
  for (const double side : {1.0, -1.0}) {
    const double swing = 0.45 * side * std::sin(stride);
    const Ink trousers = side > 0 ? kBlue : kDarkGray;
    const int knee = DrawLimb(canvas, x + 1, kHip, kKnee - kHip, swing, trousers);
    DrawLimb(canvas, knee, kKnee, kShin, swing / 2 - 0.15, trousers);
    DrawLimb(canvas, x + 1, kShoulder, kArm, -swing, side > 0 ? kLightRed : kOrange);
  }
  canvas.Box(x - 1, kShoulder - 1, 8, kHip - kShoulder + 2, kRed);
}

}  // namespace

Frames DrawWalk() {
  constexpr int kFrames = 16, kStep = 160 / kFrames;
  const Canvas lake = CanvasOf(DrawLandscape());
  Frames frames;
  for (int i = 0; i < kFrames; ++i) {
    Canvas canvas = lake;
    DrawWalker(canvas, i * kStep, i * std::acos(-1.0) / 4);
    frames.push_back(canvas.ToPicture(kBlack));
  }
  return frames;
}

Frames DrawDissolve() {
  constexpr int kFrames = 8;
  const Canvas from = CanvasOf(DrawLandscape()), to = CanvasOf(DrawPlanet());
  Frames frames;
  for (int i = 0; i < kFrames; ++i) {
    Canvas canvas = from;
    for (int y = 0; y < PictureImage::kHeight; ++y) {
      for (int x = 0; x < PictureImage::kWidth; ++x) {
        const double share = static_cast<double>(i) / (kFrames - 1);
        if (Dither(x, y, share, kBlack, kWhite) == kWhite) canvas.Put(x, y, to.At(x, y));
      }
    }
    frames.push_back(canvas.ToPicture(kBlack));
  }
  return frames;
}

Frames DrawSnow() {
  constexpr int kFrames = 200, kFlakes = 21;
  const Canvas lake = CanvasOf(DrawLandscape());
  Frames frames;
  for (int i = 0; i < kFrames; ++i) {
    Canvas canvas = lake;
    for (int flake = 0; flake < kFlakes; ++flake) {
      const int rounds = 1 + flake % 3;  // that it falls from top to bottom, over all frames
      const int y = (flake * 47 + i * rounds) % kFrames;
      const double sway = std::sin((i * 2 * std::acos(-1.0) * (2 + flake % 4)) / kFrames);
      canvas.Box(static_cast<int>(Noise(flake, 1) * 156 + 2 + 2 * sway), y, 1 + flake % 2, 2, kWhite);
    }
    frames.push_back(canvas.ToPicture(kBlack));
  }
  return frames;
}

}  // namespace kelvo::samples
