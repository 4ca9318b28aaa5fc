// Packed bytes of any kind: what Crunch made comes back, anything else is refused or ends.
#include <algorithm>
#include <stdexcept>

#include "crunch/crunch.h"
#include "input.h"

namespace {

using namespace kelvo;

constexpr std::size_t kMostToCrunch = 400;  // finding the shortest way takes long, and longer inputs show no more

void Unpack(const std::vector<std::uint8_t>& packed) {
  try {
    crunch::Decrunch(packed);
  } catch (const std::runtime_error&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const bool packs = input.Below(64) == 63;
  const int level = 1 + input.Below(crunch::kLastLevel);
  auto bytes = input.Rest();
  Unpack(bytes);
  if (!packs) return 0;
  bytes.resize(std::min(bytes.size(), kMostToCrunch));
  fuzz::Require(crunch::Decrunch(crunch::Crunch(bytes, level)) == bytes, "what is packed comes back");
  return 0;
}
