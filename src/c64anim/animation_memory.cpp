#include "c64anim/animation_memory.h"

#include <algorithm>
#include <stdexcept>

namespace kelvo::c64anim {
namespace {

// Where in a file the byte at `address` stands.
int OffsetOf(int address) {
  return (address >= kHigh ? address - kHigh + kBitmap : address) - kAnimationStart;
}

}  // namespace

AnimationMemory::AnimationMemory(std::size_t steps) {
  constexpr std::size_t kMostSteps = (kScreen - kAnimationStart) / kStepBytes - 1;
  if (steps > kMostSteps) throw std::runtime_error("The animation has too many frames.");
  const int behind_steps = AddressOfStep(steps + 1);
  rooms_ = {Room{behind_steps, kScreen - behind_steps}, Room{kHigh, kHighEnd - kHigh},
            Room{kBehindBitmap, kAnimationEnd - kBehindBitmap}};
  used_ = static_cast<std::size_t>(OffsetOf(behind_steps));
}

void AnimationMemory::Put(int address, std::span<const std::uint8_t> bytes) {
  const auto room = std::ranges::find(rooms_, address, &Room::address);
  const auto size = static_cast<int>(bytes.size());
  *room = {address + size, room->size - size};
  std::ranges::copy(bytes, file_.begin() + OffsetOf(address));
  used_ = std::max(used_, static_cast<std::size_t>(OffsetOf(address)) + bytes.size());
}

void AnimationMemory::PutStep(std::size_t index, int fields, int address) {
  const std::array<int, kStepBytes> step{fields, address & 0xFF, address >> 8};
  std::ranges::copy(step, file_.begin() + static_cast<std::ptrdiff_t>(index * kStepBytes));
}

Bytes AnimationMemory::File() const {
  return {file_.begin(), file_.begin() + static_cast<std::ptrdiff_t>(used_)};
}

}  // namespace kelvo::c64anim
