// The C64's end of Codenet: 64 KB of memory, and a note of each start.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

#include "app/bytes.h"

namespace kelvo::support {

class CodenetMachine {
 public:
  using Packet = std::span<const std::uint8_t>;

  // The answer to a packet; empty for what is no packet at all, or is shorter than it says.
  app::Bytes Handle(Packet packet) {
    const bool whole = packet.size() >= 4 && packet.size() % 2 == 0 && packet[0] == 0xCA && packet[1] == 0x1F;
    if (!whole || !Perform(packet)) return {};
    ++packets;
    return {0xCA, 0x1F, packet[2], 1};
  }

  app::Bytes memory = app::Bytes(0x10000);
  std::vector<int> jumps;  // each address jumped to
  int runs = 0;
  int packets = 0;  // that were taken

 private:
  static int WordAt(Packet packet, std::size_t offset) { return packet[offset] << 8 | packet[offset + 1]; }

  bool Perform(Packet packet) {
    enum Service { kPing = 0, kData = 4, kJump = 6, kRun = 7 };
    if (packet[3] == kData) return Write(packet);
    if (packet[3] == kRun) ++runs;
    if (packet[3] != kJump) return packet[3] == kPing || packet[3] == kRun;
    if (packet.size() < 6) return false;
    jumps.push_back(WordAt(packet, 4));
    return true;
  }

  bool Write(Packet packet) {
    if (packet.size() < 8) return false;
    const int address = WordAt(packet, 4), size = WordAt(packet, 6);
    if (size > 128 || static_cast<int>(packet.size()) < 8 + size || address + size > 0x10000) return false;
    std::copy_n(packet.begin() + 8, size, memory.begin() + address);
    return true;
  }
};

}  // namespace kelvo::support
