// The fill: a region of one colour takes another, under the cell rule.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>

#include "app/long_work.h"
#include "model/bit_pair.h"
#include "model/picture_image.h"
#include "model/picture_views.h"

namespace kelvo::editing {

// The queue of a fill has no room for another pixel.
class FillQueueFull : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class FullCellInFill { kKeep, kReplaceLeastUsed };

// Works on 4-connected pixels, breadth first: right, left, up, down of each. Every pixel is judged by the picture as it
// was before the fill, so a filled pixel still reads as the target colour; only a window of the last 1000 queue entries
// keeps pixels from being visited again. Where a fill spreads over many branches at once, the window is too short: the
// fill then runs to and fro until its queue is full.
class FloodFill {
 public:
  FloodFill(model::PictureImage& picture, model::PictureViews& views, app::ProcessEvents& events);

  // Fills from x (1..160), y (1..200) with `colour`. Cells without room keep their pixels and the fill passes through
  // them; with kReplaceLeastUsed a background region takes over their least used slot. The views hear of each written
  // pixel once. Throws FillQueueFull when the queue (128000 entries) is full: what was filled so far stays.
  void Fill(int x, int y, model::C64Colour colour, FullCellInFill full_cell);

 private:
  // The letter of a queue entry: how it was reached, and so which neighbour it came from.
  enum Letter : std::uint8_t { kH, kV, kU, kN };  // right, left, up, down

  struct Entry {
    std::uint8_t x, y;
    Letter letter;
  };

  enum class Pixel : std::uint8_t { kOther, kTarget, kVisited };  // kTarget: of the target colour, not visited yet

  static constexpr int kMostEntries = 128000, kWindow = 1000, kEntriesBetweenEvents = 8;
  static constexpr int kStride = model::PictureImage::kWidth + 2;  // a rim of one pixel around the picture

  static constexpr int At(int x, int y) { return y * kStride + x; }

  void MarkTarget(model::C64Colour target);
  std::optional<model::BitPair> SlotIn(int cell);
  void Write(int x, int y);
  void KeepFilling(int x, int y, Letter letter);
  void Store(int x, int y, Letter letter);
  bool FinnsFill(int place) const;

  model::PictureImage& picture_;
  model::PictureViews& views_;
  app::ProcessEvents& events_;

  model::PictureImage before_;
  model::C64Colour colour_;
  bool replaces_ = false;

  // By At(); kOther on the rim.
  std::array<Pixel, static_cast<std::size_t>(kStride*(model::PictureImage::kHeight + 2))> pixels_{};
  // The last queue index of a pixel, by At(); 0 for none. It answers FinnsFill without a search.
  std::array<int, static_cast<std::size_t>(kStride*(model::PictureImage::kHeight + 2))> last_index_{};
  // The slot that the colour takes in each cell, found once: all pixels of a fill ask the same question of a cell.
  struct CellSlot {
    bool known = false;
    std::optional<model::BitPair> slot;
  };
  std::array<CellSlot, model::PictureImage::kCells + 1> slots_{};
  std::unique_ptr<std::array<Entry, kMostEntries + 1>> queue_;  // entry 0 is never used
  int head_ = 0, count_ = 0;
};

}  // namespace kelvo::editing
