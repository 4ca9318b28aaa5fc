// Which frame follows which.
#pragma once

#include <cstddef>
#include <vector>

#include "anim/anim_settings.h"

namespace kelvo::anim {

// The places of `frames` frames (1 or more, from 0 on) in the order in which one round shows them. To and fro, the
// first and the last frame have one turn each.
std::vector<std::size_t> OrderOfRound(std::size_t frames, Playing playing);

}  // namespace kelvo::anim
