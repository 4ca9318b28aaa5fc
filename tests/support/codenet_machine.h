// The C64's end of Codenet: 64 KB of memory, and a note of each start.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "app/whole_file.h"

namespace kelvo::support {

class CodenetMachine {
 public:
  // The answer to a packet; empty for what is no packet at all, or is shorter than it says.
  app::Bytes Handle(std::span<const std::uint8_t> packet);

  app::Bytes memory = app::Bytes(0x10000);
  std::vector<int> jumps;  // each address jumped to
  int runs = 0;
  int packets = 0;  // that were taken

 private:
  bool Perform(std::span<const std::uint8_t> packet);
  bool Write(std::span<const std::uint8_t> packet);
};

}  // namespace kelvo::support
