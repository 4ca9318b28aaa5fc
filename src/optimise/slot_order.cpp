#include "optimise/slot_order.h"

#include <algorithm>

#include "model/pixel_colour.h"

namespace kelvo::optimise {
namespace {

using Pixels = std::array<std::uint8_t, 32>;

Pixels PixelsOf(const model::PictureImage& picture, int cell) {
  const model::CellColours own = model::ColoursOfCell(picture, cell);
  const std::array<int, 4> colours{picture.BackgroundColour.Number(), own.CellColour01.Number(),
                                   own.CellColour10.Number(), own.CellColour11.Number()};
  Pixels pixels{};
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const std::uint8_t byte = picture.Bitmap[static_cast<std::size_t>(cell - 1) * 8 + 1 + i / 4];
    pixels[i] = static_cast<std::uint8_t>(colours[byte >> (6 - 2 * (i % 4)) & 3U]);
  }
  return pixels;
}

std::vector<std::uint8_t> OwnColoursOf(const Pixels& pixels, int background) {
  std::vector<std::uint8_t> own;
  for (const std::uint8_t pixel : pixels) {
    if (pixel != background && std::find(own.begin(), own.end(), pixel) == own.end()) own.push_back(pixel);
  }
  return own;
}

void Draw(const Pixels& pixels, SlotOrder& order) {
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const auto slot = std::find(order.slots.begin(), order.slots.end(), pixels[i]);
    if (slot == order.slots.end()) continue;  // the background
    const auto pair = static_cast<unsigned>(slot - order.slots.begin() + 1);
    order.lines[i / 4] |= static_cast<std::uint8_t>(pair << (6 - 2 * (i % 4)));
  }
}

}  // namespace

std::vector<SlotOrder> SlotOrdersOf(const model::PictureImage& picture, int cell) {
  const Pixels pixels = PixelsOf(picture, cell);
  std::vector<SlotOrder> orders;
  std::array<std::size_t, kSlots> slot_of{0, 1, 2};
  const std::vector<std::uint8_t> own = OwnColoursOf(pixels, picture.BackgroundColour.Number());
  do {
    SlotOrder order;
    for (std::size_t i = 0; i < own.size(); ++i) order.slots[slot_of[i]] = own[i];
    const auto is_same = [&](const SlotOrder& other) { return other.slots == order.slots; };
    if (std::any_of(orders.begin(), orders.end(), is_same)) continue;
    Draw(pixels, order);
    orders.push_back(order);
  } while (std::next_permutation(slot_of.begin(), slot_of.end()));
  return orders;
}

}  // namespace kelvo::optimise
