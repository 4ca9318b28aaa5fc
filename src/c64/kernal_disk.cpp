#include "c64/kernal_disk.h"

namespace kelvo::c64 {
namespace {

constexpr std::uint16_t kStatus = 0x90;

}  // namespace

KernalDisk::KernalDisk(Machine& machine) : machine_(machine) {
  machine.Poke(kStatus, 0);
  machine.Trap(0xFFBD, [this](const Cpu6502& cpu) { SetName(cpu); });
  machine.Trap(0xFFBA, [this](const Cpu6502& cpu) { device = cpu.x; });  // SETLFS
  machine.Trap(0xFFD8, [this](Cpu6502& cpu) { Save(cpu); });
  machine.Trap(0xFFB4, [this](const Cpu6502& cpu) { Talk(cpu); });
  machine.Trap(0xFF96, [this](const Cpu6502& cpu) { on_channel_15_ = cpu.a == 0x6F; });  // TKSA
  machine.Trap(0xFFA5, [this](Cpu6502& cpu) { NextOfMessage(cpu); });                    // ACPTR
  machine.Trap(0xFFAB, [this](Cpu6502&) { on_channel_15_ = false; });                    // UNTLK
}

void KernalDisk::SetName(const Cpu6502& cpu) {
  name.clear();
  for (int i = 0; i < cpu.a; ++i) {
    name += static_cast<char>(machine_.Read(static_cast<std::uint16_t>((cpu.x | cpu.y << 8) + i)));
  }
}

// The KERNAL reports an error of its own in the carry, with its number in A.
void KernalDisk::Save(Cpu6502& cpu) {
  constexpr std::uint8_t kDeviceNotPresent = 5, kMissingFileName = 8;
  ++saves;
  start = machine_.Read(cpu.a) | machine_.Read(static_cast<std::uint16_t>(cpu.a + 1)) << 8;
  end = cpu.x | cpu.y << 8;
  cpu.a = name.empty() ? kMissingFileName : kDeviceNotPresent;
  cpu.Set(Cpu6502::kCarry, name.empty() || !present);
  cpu.Set(Cpu6502::kInterruptsOff, false);
}

void KernalDisk::Talk(const Cpu6502& cpu) {
  if (cpu.a != device) throw MachineFault("another drive is asked than the one that saved");
  read_ = 0;
}

void KernalDisk::NextOfMessage(Cpu6502& cpu) {
  constexpr std::uint8_t kEnd = 0x40;
  if (!on_channel_15_) throw MachineFault("nothing talks");
  cpu.a = static_cast<std::uint8_t>(read_ < message.size() ? message[read_] : '\r');
  if (++read_ >= message.size()) machine_.Poke(kStatus, kEnd);
}

}  // namespace kelvo::c64
