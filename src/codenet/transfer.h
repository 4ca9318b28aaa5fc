// What a command line of `codenet` asks for, ready to be sent.
#pragma once

#include <cstdint>
#include <optional>

#include "app/long_work.h"
#include "app/whole_file.h"
#include "codenet/arguments.h"
#include "codenet/sender.h"

namespace kelvo::codenet {

struct Transfer {
  std::uint16_t address = 0;
  app::Bytes bytes;  // for `address` on, up to $FFFF at most
  bool run = false;
  std::optional<std::uint16_t> jump;
};

// Reads the file. Throws app::FileError when it is missing, no ordinary file, empty, too short for a PRG (less than
// three bytes), or would run past $FFFF.
Transfer PrepareTransfer(const Arguments& arguments);

// Writes, then starts. Throws what the sender throws; a program whose data is not all confirmed is not started.
void SendTransfer(const Transfer& transfer, Sender& sender, app::Progress& progress);

}  // namespace kelvo::codenet
