// A frame as the cells of its picture, and cells that stay as they are from frame to frame.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "model/picture_image.h"

namespace kelvo::c64anim {

struct CellBytes {
  std::array<std::uint8_t, 8> lines{};  // of the bitmap
  std::uint8_t screen = 0;
  std::uint8_t colour = 0;  // 0..15

  friend bool operator==(const CellBytes&, const CellBytes&) = default;
  // An order of their own, so that they can be found.
  friend bool operator<(const CellBytes& one, const CellBytes& other) {
    return std::tie(one.lines, one.screen, one.colour) < std::tie(other.lines, other.screen, other.colour);
  }
};

// A frame as a C64 holds it; at first nothing, all bytes 0.
struct FrameBytes {
  std::vector<CellBytes> cells = std::vector<CellBytes>(model::PictureImage::kCells);  // by cell, from 0
  std::uint8_t background = 0;                                                         // 0..15

  friend bool operator==(const FrameBytes&, const FrameBytes&) = default;
};

FrameBytes FrameBytesOf(const model::PictureImage& picture);

// Writes the cells of frames down so that what looks the same is the same: a cell that looks as it did in any frame
// before has the bytes that it had then, and one that looks new those with the fewest changes against the frame before.
class SteadyCells {
 public:
  FrameBytes Next(const model::PictureImage& frame);

 private:
  CellBytes BytesOf(const model::PictureImage& frame, std::size_t cell, const CellBytes& before);

  using Look = std::pair<std::uint8_t, CellBytes>;  // the background, and a cell on it

  FrameBytes drawn_, steady_;  // the frame before, as it came and as it went
  std::array<std::map<Look, CellBytes>, model::PictureImage::kCells> known_;
};

}  // namespace kelvo::c64anim
