// The memory of an animation while it is filled: steps, then parts of changes one behind the other, room after room.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "c64anim/animation_format.h"

namespace kelvo::c64anim {

class AnimationMemory {
 public:
  // Addresses from `begin` to before `end`.
  struct Room {
    int begin = 0, end = 0;
  };
  static constexpr std::size_t kRooms = 3;
  using Rooms = std::array<Room, kRooms>;

  // Keeps room for the steps, and for one behind them. Throws std::runtime_error when there is not so much.
  explicit AnimationMemory(std::size_t steps);

  // Puts the next part and returns where it lies; nothing happens, and it is empty, when there is no room. Where a room
  // is full the next one is begun; if the part `goes_on` what was put before, the player is told to look there.
  std::optional<int> Put(std::span<const std::uint8_t> part, bool goes_on);
  void PutStep(std::size_t index, int fields, int address);
  static int AddressOfStep(std::size_t index) { return kAnimationStart + static_cast<int>(index) * kStepBytes; }

  // What is free; a room that is full has no address. What was put since can be taken back.
  const Rooms& Free() const { return rooms_; }
  void GoBackTo(const Rooms& free) { rooms_ = free; }

  // As a file has it, up to the end of what is used.
  Bytes File() const;

 private:
  void Write(int address, std::span<const std::uint8_t> bytes);

  Rooms rooms_{};
  Bytes file_ = Bytes(kAnimationEnd - kAnimationStart);
};

}  // namespace kelvo::c64anim
