#include "anim/playing_order.h"

namespace kelvo::anim {

std::vector<std::size_t> OrderOfRound(std::size_t frames, Playing playing) {
  std::vector<std::size_t> order;
  for (std::size_t frame = 0; frame < frames; ++frame) order.push_back(frame);
  if (playing == Playing::kToAndFro) {
    for (std::size_t frame = frames - 1; frame > 1; --frame) order.push_back(frame - 1);
  }
  return order;
}

}  // namespace kelvo::anim
