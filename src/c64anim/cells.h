// A frame as the cells of its picture, and cells that stay as they are from frame to frame.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <map>
#include <vector>

#include "model/picture_image.h"

namespace kelvo::c64anim {

struct CellBytes {
  std::array<std::uint8_t, 8> lines{};  // of the bitmap
  std::uint8_t screen = 0;
  std::uint8_t colour = 0;  // 0..15

  friend auto operator<=>(const CellBytes&, const CellBytes&) = default;
};

// By cell, from 0.
using Cells = std::vector<CellBytes>;

Cells CellsOf(const model::PictureImage& picture);

// Writes the cells of frames down so that what looks the same is the same: a cell that looks as it did in any frame
// before has the bytes that it had then, and one that looks new those with the fewest changes against the frame before.
class SteadyCells {
 public:
  // The cells of the next frame. All frames have the background of the first.
  Cells Next(const model::PictureImage& frame);

 private:
  CellBytes BytesOf(const model::PictureImage& frame, std::size_t cell, const CellBytes& before);

  Cells drawn_, steady_;  // the frame before, as it came and as it went
  std::array<std::map<CellBytes, CellBytes>, model::PictureImage::kCells> known_;  // by the look of a cell
};

}  // namespace kelvo::c64anim
