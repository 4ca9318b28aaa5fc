// The processor of a C64: every documented opcode but BRK, with the cycles that the real one takes.
//
// Decimal mode is left out: the flag is kept, but ADC and SBC always count in binary. Interrupts come from outside.
#pragma once

#include <cstdint>
#include <stdexcept>

namespace kelvo::c64 {

// What the processor's 65536 addresses reach.
class Bus {
 public:
  virtual ~Bus() = default;
  virtual std::uint8_t Read(std::uint16_t address) = 0;
  virtual void Write(std::uint16_t address, std::uint8_t value) = 0;
  // A byte of an instruction.
  virtual std::uint8_t Fetch(std::uint16_t address) = 0;
};

// A program did what no sound program does. The message says what and where.
class MachineFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// It did what ends every program: code that nobody wrote, an opcode that is not documented, no program at all.
class MachineCrash : public MachineFault {
 public:
  using MachineFault::MachineFault;
};

class Cpu6502 {
 public:
  enum Flag : std::uint8_t { kCarry = 1, kZero = 2, kInterruptsOff = 4, kDecimal = 8, kOverflow = 64, kNegative = 128 };

  explicit Cpu6502(Bus& reached) : bus(reached) {}

  // Runs one instruction. Throws MachineCrash on an opcode that is not documented.
  void Step();
  // Pushes pc and status and goes on at the address that `vector` ($FFFA, $FFFE) holds.
  void Interrupt(std::uint16_t vector);
  void ReturnFromSubroutine();
  void ReturnFromInterrupt();

  void Push(std::uint8_t value);
  std::uint8_t Pull();
  bool Has(Flag flag) const { return (status & flag) != 0; }
  void Set(Flag flag, bool on) { status = static_cast<std::uint8_t>(on ? status | flag : status & ~flag); }

  // What follows an opcode, and an address in memory.
  std::uint8_t FetchByte() { return bus.Fetch(pc++); }
  std::uint16_t FetchWord();
  std::uint16_t ReadWord(std::uint16_t low, std::uint16_t high);

  Bus& bus;
  std::uint8_t a = 0, x = 0, y = 0, stack = 0xFF, status = 0;
  std::uint16_t pc = 0;
  std::uint64_t cycles = 0;
};

}  // namespace kelvo::c64
