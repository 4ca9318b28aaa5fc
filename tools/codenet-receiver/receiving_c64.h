// The C64's end of Codenet: 64 KB of memory, and a note of each start.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "app/bytes.h"

namespace kelvo::codenet {

class ReceivingC64 {
 public:
  using Packet = std::span<const std::uint8_t>;

  // The answer to a packet; empty for what is no packet at all, or is shorter than it says.
  app::Bytes Handle(Packet packet);

  app::Bytes memory = app::Bytes(0x10000);
  std::vector<int> jumps;  // each address jumped to
  int runs = 0;
  int packets = 0;  // that were taken

 private:
  bool Perform(Packet packet);
  bool Write(Packet packet);
};

// What a packet that was taken asks for, as a line such as "write $0801-$0880".
std::string Told(ReceivingC64::Packet packet);

}  // namespace kelvo::codenet
