#include "image_file.h"

#include <stdexcept>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "model/palette.h"

#ifdef KELVO_C64_PNG
#include <QImage>
#include <QString>
#endif

namespace kelvo::c64 {
namespace {

constexpr int kBorder = 32;  // pixels on each side, about what a television shows
constexpr int kWidth = Screen::kWidth + 2 * kBorder, kHeight = Screen::kHeight + 2 * kBorder;

// Red, green and blue of each pixel.
app::Bytes PixelsOf(const Screen& screen) {
  app::Bytes pixels;
  for (int y = -kBorder; y < Screen::kHeight + kBorder; ++y) {
    for (int x = -kBorder; x < Screen::kWidth + kBorder; ++x) {
      const bool inside = x >= 0 && x < Screen::kWidth && y >= 0 && y < Screen::kHeight;
      const auto& colour = model::kPalette.at(static_cast<std::size_t>(inside ? screen.At(x, y) : screen.border));
      pixels.insert(pixels.end(), {colour.red, colour.green, colour.blue});
    }
  }
  return pixels;
}

void WritePpm(const app::Bytes& pixels, const std::filesystem::path& file) {
  const std::string header = "P6\n" + std::to_string(kWidth) + " " + std::to_string(kHeight) + "\n255\n";
  app::Bytes bytes(header.begin(), header.end());
  bytes.insert(bytes.end(), pixels.begin(), pixels.end());
  app::WriteWholeFile(file, bytes);
}

}  // namespace

void WriteImage(const Screen& screen, const std::filesystem::path& file) {
  const app::Bytes pixels = PixelsOf(screen);
  if (file.extension() == ".ppm") return WritePpm(pixels, file);
#ifdef KELVO_C64_PNG
  const QImage image(pixels.data(), kWidth, kHeight, 3 * kWidth, QImage::Format_RGB888);
  if (image.save(QString::fromStdString(app::TextFromPath(file)))) return;
  throw std::runtime_error(app::TextFromPath(file) + ": this image cannot be written");
#else
  throw std::runtime_error(app::TextFromPath(file) + ": only .ppm images are written by this build");
#endif
}

}  // namespace kelvo::c64
