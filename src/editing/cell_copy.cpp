#include "editing/cell_copy.h"

#include <algorithm>

namespace kelvo::editing {
namespace {

constexpr std::size_t kFirstLine = 3;  // of the buffer

}  // namespace

void MouseCopy(const model::PictureImage& picture, const model::PixelPlace& place, model::DetachedCell& buffer) {
  const auto cell = static_cast<std::size_t>(place.cell);
  buffer[1] = picture.ColourMemory.at(cell);
  buffer[2] = picture.ScreenMemory.at(cell);
  std::copy_n(picture.Bitmap.begin() + place.base + 1, 8, buffer.begin() + kFirstLine);
}

void MouseCopySet(model::PictureImage& picture, const model::PixelPlace& place, const model::DetachedCell& buffer) {
  const auto cell = static_cast<std::size_t>(place.cell);
  picture.ColourMemory.at(cell) = buffer[1];
  picture.ScreenMemory.at(cell) = buffer[2];
  std::copy_n(buffer.begin() + kFirstLine, 8, picture.Bitmap.begin() + place.base + 1);
}

void FillChar(model::PictureImage& picture, const model::PixelPlace& place, model::C64Colour colour) {
  model::DetachedCell block{};
  std::fill(block.begin() + kFirstLine, block.end(), std::uint8_t{0xFF});
  block[1] = colour.Byte();
  MouseCopySet(picture, place, block);
}

}  // namespace kelvo::editing
