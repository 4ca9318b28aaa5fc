// The KERNAL's way to a disk drive, as traps of a machine: what a program saves, and what the drive says of it.
#pragma once

#include <string>

#include "c64/machine.h"

namespace kelvo::c64 {

class KernalDisk {
 public:
  // Takes the calls of `machine`, which must live as long as this.
  explicit KernalDisk(Machine& machine);

  // What the drive will do: whether it is there at all, and what it then says on its channel 15.
  bool present = true;
  std::string message = "00, OK,00,00\r";

  // What it was told to save, in the C64's memory up to `end`, which is not saved itself.
  int saves = 0;
  std::string name;
  int device = 0, start = 0, end = 0;

 private:
  void SetName(const Cpu6502& cpu);
  void Save(Cpu6502& cpu);
  void Talk(const Cpu6502& cpu);
  void NextOfMessage(Cpu6502& cpu);

  Machine& machine_;
  std::size_t read_ = 0;
  bool on_channel_15_ = false;
};

}  // namespace kelvo::c64
