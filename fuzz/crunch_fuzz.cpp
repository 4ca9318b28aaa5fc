// Packed bytes of any kind: what Crunch made comes back, anything else is refused or ends.
#include <stdexcept>

#include "c64out/crunch.h"
#include "input.h"

namespace {

using namespace kelvo;

constexpr std::size_t kPicture = 10001;  // a length that the cruncher has a layout for

void Unpack(const std::vector<std::uint8_t>& bytes) {
  try {
    c64out::Decrunch(bytes);
  } catch (const std::runtime_error&) {
  }
}

std::vector<std::uint8_t> Repeated(const std::vector<std::uint8_t>& pattern, std::size_t size) {
  std::vector<std::uint8_t> bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = pattern[i % pattern.size()];
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const int mode = input.Below(8), level = 1 + input.Below(3);
  auto bytes = input.Rest();
  if (mode < 6) {
    Unpack(bytes);
    return 0;
  }
  if (mode == 6 && !bytes.empty()) bytes = Repeated(bytes, kPicture);
  fuzz::Require(c64out::Decrunch(c64out::Crunch(bytes, level)) == bytes, "what is packed comes back");
  return 0;
}
