#include "editing/flood_fill.h"

#include "editing/cell_slots.h"
#include "editing/set_data.h"
#include "model/pixel_colour.h"

namespace kelvo::editing {

using model::BitPair;
using model::PictureImage;

FloodFill::FloodFill(PictureImage& picture, model::PictureViews& views, app::ProcessEvents& events)
    : picture_(picture),
      views_(views),
      events_(events),
      queue_(std::make_unique_for_overwrite<std::array<Entry, kMostEntries + 1>>()) {}

void FloodFill::Fill(int x, int y, model::C64Colour colour, FullCellInFill full_cell) {
  before_ = picture_;
  colour_ = colour;
  const model::C64Colour target = model::GetPixelData(before_, x, y).colour;
  replaces_ = full_cell == FullCellInFill::kReplaceLeastUsed && target == before_.BackgroundColour;
  MarkTarget(target);
  last_index_.fill(0);
  slots_.fill({});
  head_ = count_ = 0;

  Write(x, y);
  KeepFilling(x + 1, y, kH);
  KeepFilling(x - 1, y, kV);
  KeepFilling(x, y - 1, kU);
  KeepFilling(x, y + 1, kN);
  while (head_ < count_) {
    const Entry entry = (*queue_)[static_cast<std::size_t>(++head_)];
    KeepFilling(entry.x, entry.y, entry.letter);
    if (head_ % kEntriesBetweenEvents == 0) events_.Process();
  }
}

void FloodFill::MarkTarget(model::C64Colour target) {
  for (int cell = 1; cell <= PictureImage::kCells; ++cell) {
    std::array<Pixel, 4> shows{};
    for (std::size_t pair = 0; pair < 4; ++pair) {
      const bool is_target = model::ColourInCell(before_, cell, static_cast<BitPair>(pair)) == target;
      shows[pair] = is_target ? Pixel::kTarget : Pixel::kOther;
    }
    const int left = (cell - 1) % PictureImage::kCellsWide * 4 + 1, top = (cell - 1) / PictureImage::kCellsWide * 8 + 1;
    for (int line = 0; line < 8; ++line) {
      const std::uint8_t byte = before_.Bitmap[static_cast<std::size_t>(model::BaseOfCell(cell) + 1 + line)];
      Pixel* row = &pixels_[static_cast<std::size_t>(At(left, top + line))];
      for (int position = 1; position <= 4; ++position) {
        row[position - 1] = shows[static_cast<std::size_t>(model::PairAt(byte, position))];
      }
    }
  }
}

std::optional<BitPair> FloodFill::SlotIn(int cell) {
  CellSlot& known = slots_[static_cast<std::size_t>(cell)];
  if (!known.known) {
    const int base = model::BaseOfCell(cell);
    known.slot = GetColorBinForChar(before_, colour_, cell, base);
    if (!known.slot && replaces_) known.slot = GetLeastUsedCol(before_, base);
    known.known = true;
  }
  return known.slot;
}

void FloodFill::Write(int x, int y) {
  pixels_[static_cast<std::size_t>(At(x, y))] = Pixel::kVisited;
  const model::PixelPlace place = model::LookUpPixel(x, y);
  const auto slot = SlotIn(place.cell);
  if (!slot) return;
  SetData(picture_, place.byte, place.position, *slot, place.cell, colour_);
  views_.PixelChanged(x, y);
}

void FloodFill::KeepFilling(int x, int y, Letter letter) {
  const Pixel pixel = pixels_[static_cast<std::size_t>(At(x, y))];
  if (pixel == Pixel::kOther) return;
  if (pixel == Pixel::kTarget) Write(x, y);  // another visit would write the same again
  if (letter != kV) Store(x + 1, y, kH);
  if (letter != kH) Store(x - 1, y, kV);
  if (letter != kN) Store(x, y - 1, kU);
  if (letter != kU) Store(x, y + 1, kN);
}

void FloodFill::Store(int x, int y, Letter letter) {
  const int place = At(x, y);
  if (pixels_[static_cast<std::size_t>(place)] == Pixel::kOther || FinnsFill(place)) return;
  if (count_ == kMostEntries) throw FillQueueFull("the fill has more than 128000 pixels to visit");
  (*queue_)[static_cast<std::size_t>(++count_)] = {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), letter};
  last_index_[static_cast<std::size_t>(place)] = count_;
}

bool FloodFill::FinnsFill(int place) const {
  const int last = last_index_[static_cast<std::size_t>(place)];
  return last != 0 && last >= count_ - kWindow;
}

}  // namespace kelvo::editing
