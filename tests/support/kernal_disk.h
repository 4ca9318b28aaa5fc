// The KERNAL's way to a disk drive, as traps on a test's C64: what a program saves, and what the drive says of it.
#pragma once

#include <string>

#include "app/whole_file.h"
#include "support/c64_machine.h"

namespace kelvo::support {

class KernalDisk {
 public:
  // Takes the calls of `machine`, which must live as long as this.
  explicit KernalDisk(C64Machine& machine);

  // What the drive will do: whether it is there at all, and what it then says on its channel 15.
  bool present = true;
  std::string message = "00, OK,00,00\r";

  // What it was told to save, in the C64's memory up to `end`, which is not saved itself.
  int saves = 0;
  app::Bytes name;
  int device = 0, start = 0, end = 0;

 private:
  void Save(Cpu6502& cpu);
  void Talk(Cpu6502& cpu);
  void NextOfMessage(Cpu6502& cpu);

  C64Machine& machine_;
  std::size_t read_ = 0;
  bool on_channel_15_ = false;
};

}  // namespace kelvo::support
