#include "support/codenet_machine.h"

#include <algorithm>

namespace kelvo::support {
namespace {

int WordAt(std::span<const std::uint8_t> packet, std::size_t offset) {
  return packet[offset] << 8 | packet[offset + 1];
}

}  // namespace

app::Bytes CodenetMachine::Handle(std::span<const std::uint8_t> packet) {
  const bool whole = packet.size() >= 4 && packet.size() % 2 == 0 && packet[0] == 0xCA && packet[1] == 0x1F;
  if (!whole || !Perform(packet)) return {};
  ++packets;
  return {0xCA, 0x1F, packet[2], 1};
}

bool CodenetMachine::Perform(std::span<const std::uint8_t> packet) {
  switch (packet[3]) {
    case 0:
      return true;
    case 4:
      return Write(packet);
    case 6:
      if (packet.size() < 6) return false;
      jumps.push_back(WordAt(packet, 4));
      return true;
    case 7:
      ++runs;
      return true;
    default:
      return false;
  }
}

bool CodenetMachine::Write(std::span<const std::uint8_t> packet) {
  if (packet.size() < 8) return false;
  const int address = WordAt(packet, 4), size = WordAt(packet, 6);
  if (size > 128 || static_cast<int>(packet.size()) < 8 + size || address + size > 0x10000) return false;
  std::copy_n(packet.begin() + 8, size, memory.begin() + address);
  return true;
}

}  // namespace kelvo::support
