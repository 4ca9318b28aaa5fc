#include "c64anim/animation_memory.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace kelvo::c64anim {
namespace {

constexpr AnimationMemory::Rooms kAllRooms{
    {{kAnimationStart, kScreen}, {kHigh, kHighEnd}, {kBehindBitmap, kAnimationEnd}}};

// Where in a file the byte at `address` stands.
int OffsetOf(int address) {
  return (address >= kHigh ? address - kHigh + kBitmap : address) - kAnimationStart;
}

bool IsFull(const AnimationMemory::Room& room) {
  return room.begin == room.end;
}

}  // namespace

AnimationMemory::AnimationMemory(std::size_t steps) : rooms_(kAllRooms) {
  constexpr std::size_t kMostSteps = (kScreen - kAnimationStart) / kStepBytes - 1;
  if (steps > kMostSteps) {
    throw std::runtime_error("The animation takes " + std::to_string(steps) + " steps, and there is room for " +
                             std::to_string(kMostSteps) +
                             ": each frame takes one (to and fro, both ways count), and one more for each 5 seconds "
                             "that it stays.");
  }
  rooms_.front().begin = AddressOfStep(steps + 1);
}

std::optional<int> AnimationMemory::Put(std::span<const std::uint8_t> part, bool goes_on) {
  const auto first = std::ranges::find_if_not(rooms_, IsFull);
  const auto room = std::find_if(
      first, rooms_.end(), [&](const Room& one) { return one.end - one.begin >= std::ssize(part) + kElsewhereBytes; });
  if (room == rooms_.end()) return std::nullopt;
  const int address = room->begin;
  if (goes_on && room != first) {
    const std::array<std::uint8_t, kElsewhereBytes> elsewhere{kElsewhere, static_cast<std::uint8_t>(address),
                                                              static_cast<std::uint8_t>(address >> 8)};
    Write(first->begin, elsewhere);
  }
  std::for_each(first, room, [](Room& full) { full.begin = full.end; });
  Write(address, part);
  room->begin += static_cast<int>(part.size());
  return address;
}

void AnimationMemory::PutStep(std::size_t index, int fields, int address) {
  const std::array<int, kStepBytes> step{fields, address & 0xFF, address >> 8};
  std::ranges::copy(step, file_.begin() + static_cast<std::ptrdiff_t>(index * kStepBytes));
}

void AnimationMemory::Write(int address, std::span<const std::uint8_t> bytes) {
  std::ranges::copy(bytes, file_.begin() + OffsetOf(address));
}

Bytes AnimationMemory::File() const {
  int used = 0;
  for (std::size_t i = 0; i < kRooms; ++i) {
    const bool is_used = i == 0 || rooms_[i].begin != kAllRooms[i].begin;
    if (is_used) used = std::max(used, OffsetOf(rooms_[i].begin - 1) + 1);
  }
  return {file_.begin(), file_.begin() + used};
}

}  // namespace kelvo::c64anim
