// The memory of an animation while it is filled: steps, then changes where there is room for them.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "c64anim/animation_format.h"

namespace kelvo::c64anim {

class AnimationMemory {
 public:
  // Keeps room for the steps, and for one behind them. Throws std::runtime_error when there is not so much.
  explicit AnimationMemory(std::size_t steps);

  struct Room {
    int address = 0, size = 0;
  };
  // What is free.
  std::span<const Room> Rooms() const { return rooms_; }

  // `address` is where one of the rooms begins, which has as many bytes.
  void Put(int address, std::span<const std::uint8_t> bytes);
  void PutStep(std::size_t index, int fields, int address);
  static int AddressOfStep(std::size_t index) { return kAnimationStart + static_cast<int>(index) * kStepBytes; }

  // As a file has it, up to the end of what is used.
  Bytes File() const;

 private:
  std::array<Room, 3> rooms_;
  Bytes file_ = Bytes(kAnimationEnd - kAnimationStart);
  std::size_t used_ = 0;
};

}  // namespace kelvo::c64anim
