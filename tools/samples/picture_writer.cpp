#include "picture_writer.h"

#include <cstdint>

#include "app/whole_file.h"
#include "files/picture_format.h"

namespace kelvo::samples {
namespace {

using model::PictureImage;

constexpr std::size_t kBackgroundCell = 999, kLastByte = 8000;
constexpr std::uint8_t kUnread = 255;

template <std::size_t size>
void Append(app::Bytes& bytes, const std::array<std::uint8_t, size>& memory, std::ptrdiff_t count) {
  bytes.insert(bytes.end(), memory.begin() + 1, memory.begin() + 1 + count);
}

// Kelvo's own layout without signature and background.
app::Bytes Vidcom64(PictureImage picture) {
  for (std::size_t spare = 1001; spare <= 1024; ++spare) picture.ScreenMemory[spare] = 0;
  return files::Encode(picture);
}

app::Bytes Koala(const PictureImage& picture) {
  app::Bytes bytes{0x00, 0x60};
  Append(bytes, picture.Bitmap, 8000);
  Append(bytes, picture.ScreenMemory, 1000);
  Append(bytes, picture.ColourMemory, 1000);
  bytes.push_back(picture.BackgroundColour.Byte());
  return bytes;
}

}  // namespace

void WritePicture(const std::filesystem::path& folder, const std::string& name, PictureImage picture) {
  // A Koala file's background is read from the colour byte of cell 999: it carries the background colour, and the
  // cell's %11 pixels, if any, show it.
  picture.ColourMemory[kBackgroundCell] = picture.BackgroundColour.Byte();
  // The last byte of a bitmap is not read, but for the exact reading: it is what stands there then, so that both
  // readings show the same.
  picture.Bitmap[kLastByte] = kUnread;
  app::WriteWholeFile(folder / (name + ".koa"), Koala(picture));
  app::WriteWholeFile(folder / (name + ".vid"), Vidcom64(picture));
  files::Sign(picture);
  app::WriteWholeFile(folder / (name + ".kvp"), files::Encode(picture));
}

}  // namespace kelvo::samples
