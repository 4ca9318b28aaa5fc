// In which slots the own colours of a cell stand: the ways to write down one cell, all of which look the same.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "model/picture_image.h"

namespace kelvo::optimise {

inline constexpr int kSlots = 3;  // %01, %10, %11

// A cell with its colours in certain slots. A slot that no pixel uses is free.
struct SlotOrder {
  std::array<std::uint8_t, 8> lines{};                    // of the bitmap
  std::array<std::optional<std::uint8_t>, kSlots> slots;  // colours 0..15
};

// The orders of `cell` (1..1000), in a fixed sequence: 6 for two or three colours, fewer for less. Pixels of the
// background's colour are %00 in each of them.
std::vector<SlotOrder> SlotOrdersOf(const model::PictureImage& picture, int cell);

}  // namespace kelvo::optimise
