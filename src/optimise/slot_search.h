// Looks for the orders of slots in which neighbouring cells agree, so that the picture packs well.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/picture_image.h"
#include "optimise/byte_statistics.h"
#include "optimise/slot_order.h"

namespace kelvo::optimise {

// Where a search begins: each leads to another end, and none is the best for all pictures.
enum class SlotStart { kLikeNeighbours, kByBrightness, kAsDrawn };
inline constexpr SlotStart kSlotStarts[] = {SlotStart::kLikeNeighbours, SlotStart::kByBrightness, SlotStart::kAsDrawn};

// A cell's order and colours are changed to what the statistics of all other cells expect most, cell by cell, until
// nothing changes any more. The bitmap is looked at in columns, as it often packs best.
class SlotSearch {
 public:
  explicit SlotSearch(const model::PictureImage& picture);

  // The picture with the orders that a search from `start` finds. It looks the same.
  model::PictureImage Run(SlotStart start);

 private:
  static constexpr int kCells = model::PictureImage::kCells;
  using Row = std::array<std::uint8_t, kCells>;  // a byte for each cell
  // What a cell is told with.
  struct Choice {
    std::size_t order;
    std::uint8_t screen, colour;

    friend bool operator==(const Choice&, const Choice&) = default;
  };

  void Begin(SlotStart start);
  std::size_t FirstOrder(int cell, SlotStart start) const;
  float Strangeness(int cell, const SlotOrder& order, SlotStart start) const;
  void FillLikeBefore(int cell);
  void CountAll();
  bool Improve(int cell);  // false when it stays
  Choice BestChoice(int cell);
  void BestFill(int cell, const SlotOrder& order, Choice& choice, float& bits);

  const std::array<std::uint8_t, 8>& Lines(int cell) const;
  Context ContextOfLines(int cell) const;
  void CountLines(int cell, int times);
  void CountSides(int cell, int times);
  void CountRows(int cell, int times);
  void CountAround(int cell, int times);
  float LineBits(int cell) const;
  float SideBits(int cell) const;
  float RowBits(const ByteStatistics& statistics, const Row& row, int cell) const;
  std::vector<std::uint8_t> ColoursAround(int cell, std::size_t slot) const;
  std::uint8_t ColourIn(int cell, std::size_t slot) const;

  model::PictureImage picture_;
  std::vector<std::vector<SlotOrder>> orders_;  // by cell, from 0
  std::vector<std::size_t> chosen_;
  Row screen_{}, colour_{};
  ByteStatistics lines_, sides_, screens_, colours_;
};

}  // namespace kelvo::optimise
