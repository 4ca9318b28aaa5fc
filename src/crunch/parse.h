// Finds the tokens that make a section shortest.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "crunch/section.h"

namespace kelvo::crunch {

// How much work a search takes.
struct Effort {
  int passes;    // over the whole section; each tells offsets in the way that suited the tokens of the pass before
  int arrivals;  // ways to reach a place that are followed further, apart in the offset they used last
  int window;    // the farthest offset that is looked for

  friend bool operator==(const Effort&, const Effort&) = default;
};

struct Parse {
  std::vector<Token> tokens;
  OffsetCode code;
  int bits = 0;  // that the tokens take
};

// The tokens of `bytes`, in order, and the code for their offsets.
Parse FindTokens(std::span<const std::uint8_t> bytes, Literals literals, const Effort& effort);

}  // namespace kelvo::crunch
