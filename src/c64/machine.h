// A C64 without ROMs that runs a program, and notices what a sound program does not do.
//
//   Machine machine;
//   machine.Load(prg);
//   machine.Run();                          // from the SYS of its BASIC line to its end; throws MachineFault
//   const Screen screen = ScreenOf(machine);  // what it shows then, see c64/screen.h
//
// It has the processor with $01 banking, RAM, colour RAM, the VIC's registers but for the raster, the VIC's
// bank, and the 60 Hz interrupt; where it is asked for, a PAL machine's raster beam too (c64/beam.h shows what it
// draws). There are no ROMs: a KERNAL routine is a trap that the caller sets, and what must not happen is a
// MachineFault: executing what nobody wrote, reading ROM as data, calling a routine without a trap, writing a zero page
// byte that BASIC and KERNAL keep, changing what a shown bitmap consists of, running on without an end. There is no
// SID, no second CIA but for the VIC's bank, and no interrupt but of the timer and of the beam.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>

#include "c64/cpu6502.h"

namespace kelvo::c64 {

class Machine final : public Bus {
 public:
  // How a program ends: it jumps to itself for ever, or returns to BASIC.
  enum class Ending { kLoops, kReturns };

  static constexpr std::uint64_t kMostCycles = 20'000'000;  // about 20 seconds

  // Of a PAL machine's beam. The 200 lines of a picture begin at kFirstLine.
  static constexpr int kLineCycles = 63, kLines = 312, kFieldCycles = kLineCycles * kLines, kFirstLine = 51;
  static constexpr int kStolenCycles = 43;

  // A machine after power-on whose RAM holds leftovers of an earlier program.
  Machine();

  // Puts a PRG (its first two bytes are the load address) into RAM.
  void Load(std::span<const std::uint8_t> prg);
  // Calls `routine` instead of the KERNAL's at `address`, then returns to the caller.
  void Trap(std::uint16_t address, std::function<void(Cpu6502&)> routine) { traps_[address] = std::move(routine); }
  // Presses the RESTORE key, without STOP, every so many cycles.
  void PressRestoreEvery(std::uint64_t cycles) { restore_every_ = cycles; }
  // A program may change what it shows.
  void LetItChangeWhatIsShown() { may_change_ = true; }
  // Moves a beam from power-on on: its line can be read in $D011 and $D012, $D019 and $D01A interrupt at a line, and
  // each first line of a row of cells takes kStolenCycles from the processor, the most that it may be, at its
  // beginning.
  void SwitchBeamOn() { has_beam_ = true; }
  // What a jump to the program from a running one leaves behind: decimal mode, a deep stack.
  void LeaveUnclean() { unclean_ = true; }

  // Starts the program from the SYS of its BASIC line, as RUN does. Throws MachineFault.
  Ending Run(std::uint64_t most_cycles = kMostCycles) { return RunFrom(SysAddress(), most_cycles); }
  // Starts it at `address`, as SYS does. Throws MachineFault.
  Ending RunFrom(std::uint16_t address, std::uint64_t most_cycles = kMostCycles);

  // The same in steps: begins, and goes on until `cycles` have passed since power-on. Empty when it has not ended.
  void Start() { StartFrom(SysAddress()); }
  void StartFrom(std::uint16_t address);
  std::optional<Ending> RunOn(std::uint64_t cycles);

  // Where the VIC's bank of 16 KB begins, and what was written into I/O ($D000-$DFFF, colour RAM from $D800 on).
  int VicBank() const;
  std::uint8_t Io(int address) const { return io_[static_cast<std::size_t>(address - 0xD000)]; }
  // I/O can be reached, so that the VIC can be written.
  bool IoVisible() const { return Chip(0xD000) == Area::kIo; }
  const Cpu6502& Cpu() const { return cpu_; }
  std::uint8_t StackAtStart() const { return stack_at_start_; }
  std::uint8_t Ram(int address) const { return ram_[static_cast<std::size_t>(address)]; }
  void Poke(std::uint16_t address, std::uint8_t value);

  std::uint8_t Read(std::uint16_t address) override;
  void Write(std::uint16_t address, std::uint8_t value) override;
  std::uint8_t Fetch(std::uint16_t address) override;

 private:
  enum class Area { kRam, kRom, kIo };

  Area Chip(std::uint16_t address) const;
  std::uint8_t ReadIo(std::uint16_t address);
  void WriteIo(std::uint16_t address, std::uint8_t value);
  std::optional<std::uint8_t> ReadBeam(std::uint16_t address) const;
  void MoveBeam();
  void BeginLine(int line);
  bool ShowsBitmap() const { return (io_[0x11] & 0x30) == 0x30; }
  bool IsShown(std::uint16_t address) const;
  std::uint16_t SysAddress() const;
  void Interrupts();
  void EnterKernal();
  bool IsInterrupted();
  void CallTrap();
  [[noreturn]] void Fault(const std::string& what, std::uint16_t address) const;
  [[noreturn]] void Crash(const std::string& what, std::uint16_t address) const;
  std::string Told(const std::string& what, std::uint16_t address) const;

  Cpu6502 cpu_{*this};
  std::array<std::uint8_t, 0x10000> ram_{};
  std::array<bool, 0x10000> written_{};
  std::array<std::uint8_t, 0x1000> io_{};  // $D000-$DFFF; colour RAM from $800 on
  std::map<std::uint16_t, std::function<void(Cpu6502&)>> traps_;
  std::uint8_t stack_at_start_ = 0;
  std::uint64_t next_jiffy_ = 0, next_restore_ = 0, restore_every_ = 0;
  std::uint8_t open_bus_ = 0;      // what colour RAM's missing half reads as, ever something else
  std::uint64_t lines_begun_ = 0;  // by the beam, since power-on
  bool unclean_ = false, may_change_ = false, has_beam_ = false;
};

}  // namespace kelvo::c64
