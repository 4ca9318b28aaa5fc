#include "c64/cpu6502.h"

#include <algorithm>
#include <string>

namespace kelvo::c64 {
namespace {

using Cpu = Cpu6502;

// Bits 2 to 4 of an opcode, in this order; but see ModeOf(). LDX and STX have Y for X.
enum Mode { kPointerX, kZeroPage, kImmediate, kAbsolute, kPointerY, kZeroPageX, kAbsoluteY, kAbsoluteX, kAccumulator };

// What an instruction does with its operand decides its cycles.
enum class Access { kRead, kStore, kModify };

// Where an instruction finds its operand: at an address, or in the accumulator.
struct Operand {
  Cpu& cpu;
  Mode mode;
  std::uint16_t address;

  std::uint8_t Read() const { return mode == kAccumulator ? cpu.a : cpu.bus.Read(address); }
  void Write(std::uint8_t value) const {
    if (mode == kAccumulator) {
      cpu.a = value;
    } else {
      cpu.bus.Write(address, value);
    }
  }
};

std::uint8_t Judged(Cpu& cpu, int result) {
  const auto value = static_cast<std::uint8_t>(result);
  cpu.Set(Cpu::kZero, value == 0);
  cpu.Set(Cpu::kNegative, value >= 0x80);
  return value;
}

void Compare(Cpu& cpu, int left, int right) {
  cpu.Set(Cpu::kCarry, left >= right);
  Judged(cpu, left - right);
}

void Add(Cpu& cpu, int value) {
  const int sum = cpu.a + value + (cpu.Has(Cpu::kCarry) ? 1 : 0);
  cpu.Set(Cpu::kCarry, sum > 0xFF);
  cpu.Set(Cpu::kOverflow, (~(cpu.a ^ value) & (cpu.a ^ sum) & 0x80) != 0);
  cpu.a = Judged(cpu, sum);
}

void TestBits(Cpu& cpu, int value) {
  Judged(cpu, value);
  cpu.Set(Cpu::kZero, (cpu.a & value) == 0);
  cpu.Set(Cpu::kOverflow, (value & 0x40) != 0);
}

void ShiftLeft(Operand operand, bool low_bit) {
  const int value = operand.Read();
  operand.cpu.Set(Cpu::kCarry, value >= 0x80);
  operand.Write(Judged(operand.cpu, value << 1 | (low_bit ? 1 : 0)));
}

void ShiftRight(Operand operand, bool high_bit) {
  const int value = operand.Read();
  operand.cpu.Set(Cpu::kCarry, (value & 1) != 0);
  operand.Write(Judged(operand.cpu, value >> 1 | (high_bit ? 0x80 : 0)));
}

struct Family {
  std::uint8_t opcode;  // with no bit of the mode
  std::uint8_t modes;   // bit n: the n-th mode is there
  Access access;
  void (*perform)(Cpu&, Operand);
  std::uint8_t Cpu::*index = &Cpu::x;
};

// The instructions with an operand.
constexpr Family kFamilies[] = {
    {0x01, 0xFF, Access::kRead, [](Cpu& cpu, Operand o) { cpu.a = Judged(cpu, cpu.a | o.Read()); }},
    {0x21, 0xFF, Access::kRead, [](Cpu& cpu, Operand o) { cpu.a = Judged(cpu, cpu.a & o.Read()); }},
    {0x41, 0xFF, Access::kRead, [](Cpu& cpu, Operand o) { cpu.a = Judged(cpu, cpu.a ^ o.Read()); }},
    {0x61, 0xFF, Access::kRead, [](Cpu& cpu, Operand o) { Add(cpu, o.Read()); }},
    {0x81, 0xFB, Access::kStore, [](Cpu& cpu, Operand o) { o.Write(cpu.a); }},
    {0xA1, 0xFF, Access::kRead, [](Cpu& cpu, Operand o) { cpu.a = Judged(cpu, o.Read()); }},
    {0xC1, 0xFF, Access::kRead, [](Cpu& cpu, Operand o) { Compare(cpu, cpu.a, o.Read()); }},
    {0xE1, 0xFF, Access::kRead, [](Cpu& cpu, Operand o) { Add(cpu, 0xFF - o.Read()); }},
    {0x02, 0xAE, Access::kModify, [](Cpu&, Operand o) { ShiftLeft(o, false); }},
    {0x22, 0xAE, Access::kModify, [](Cpu& cpu, Operand o) { ShiftLeft(o, cpu.Has(Cpu::kCarry)); }},
    {0x42, 0xAE, Access::kModify, [](Cpu&, Operand o) { ShiftRight(o, false); }},
    {0x62, 0xAE, Access::kModify, [](Cpu& cpu, Operand o) { ShiftRight(o, cpu.Has(Cpu::kCarry)); }},
    {0x82, 0x2A, Access::kStore, [](Cpu& cpu, Operand o) { o.Write(cpu.x); }, &Cpu::y},
    {0xA2, 0xAB, Access::kRead, [](Cpu& cpu, Operand o) { cpu.x = Judged(cpu, o.Read()); }, &Cpu::y},
    {0xC2, 0xAA, Access::kModify, [](Cpu& cpu, Operand o) { o.Write(Judged(cpu, o.Read() - 1)); }},
    {0xE2, 0xAA, Access::kModify, [](Cpu& cpu, Operand o) { o.Write(Judged(cpu, o.Read() + 1)); }},
    {0x20, 0x0A, Access::kRead, [](Cpu& cpu, Operand o) { TestBits(cpu, o.Read()); }},
    {0x80, 0x2A, Access::kStore, [](Cpu& cpu, Operand o) { o.Write(cpu.y); }},
    {0xA0, 0xAB, Access::kRead, [](Cpu& cpu, Operand o) { cpu.y = Judged(cpu, o.Read()); }},
    {0xC0, 0x0B, Access::kRead, [](Cpu& cpu, Operand o) { Compare(cpu, cpu.y, o.Read()); }},
    {0xE0, 0x0B, Access::kRead, [](Cpu& cpu, Operand o) { Compare(cpu, cpu.x, o.Read()); }},
};

// `base` + `index`, with the cycle that carrying into the high byte takes; only a read goes without it where none is.
std::uint16_t Indexed(Cpu& cpu, int base, int index, Access access) {
  const int address = base + index;
  if (access != Access::kRead || ((base ^ address) & 0xFF00) != 0) ++cpu.cycles;
  return static_cast<std::uint16_t>(address);
}

// A pointer's high byte comes from the same page, even where the pointer lies at its end.
std::uint16_t PointerAt(Cpu& cpu, int place) {
  return cpu.ReadWord(static_cast<std::uint16_t>(place),
                      static_cast<std::uint16_t>((place & 0xFF00) | ((place + 1) & 0xFF)));
}

Mode ModeOf(int opcode) {
  const auto mode = static_cast<Mode>(opcode >> 2 & 7);
  if ((opcode & 1) != 0) return mode;
  return mode == kPointerX ? kImmediate : mode == kImmediate ? kAccumulator : mode;
}

// The address of an operand. Counts the cycles of a read through it.
std::uint16_t Locate(Cpu& cpu, Mode mode, const Family& family) {
  constexpr std::uint64_t kReadCycles[] = {6, 3, 2, 4, 5, 4, 4, 4, 2};
  cpu.cycles += kReadCycles[mode];
  switch (mode) {
    case kPointerX:
      return PointerAt(cpu, static_cast<std::uint8_t>(cpu.FetchByte() + cpu.x));
    case kZeroPage:
      return cpu.FetchByte();
    case kImmediate:
      return cpu.pc++;
    case kAbsolute:
      return cpu.FetchWord();
    case kPointerY:
      return Indexed(cpu, PointerAt(cpu, cpu.FetchByte()), cpu.y, family.access);
    case kZeroPageX:
      return static_cast<std::uint8_t>(cpu.FetchByte() + cpu.*family.index);
    case kAbsoluteY:
      return Indexed(cpu, cpu.FetchWord(), cpu.y, family.access);
    case kAbsoluteX:
      return Indexed(cpu, cpu.FetchWord(), cpu.*family.index, family.access);
    default:
      return 0;
  }
}

bool UseOperand(Cpu& cpu, int opcode) {
  const auto* const family = std::find_if(std::begin(kFamilies), std::end(kFamilies), [=](const Family& one) {
    return one.opcode == (opcode & 0xE3) && (one.modes >> (opcode >> 2 & 7) & 1) != 0;
  });
  if (family == std::end(kFamilies)) return false;
  const Mode mode = ModeOf(opcode);
  if (family->access == Access::kModify && mode != kAccumulator) cpu.cycles += 2;
  family->perform(cpu, {cpu, mode, Locate(cpu, mode, *family)});
  return true;
}

bool Branch(Cpu& cpu, int opcode) {
  constexpr Cpu::Flag kFlags[] = {Cpu::kNegative, Cpu::kOverflow, Cpu::kCarry, Cpu::kZero};
  if ((opcode & 0x1F) != 0x10) return false;
  const auto distance = static_cast<std::int8_t>(cpu.FetchByte());
  cpu.cycles += 2;
  if (cpu.Has(kFlags[opcode >> 6]) == ((opcode & 0x20) != 0)) {
    const auto target = static_cast<std::uint16_t>(cpu.pc + distance);
    cpu.cycles += (cpu.pc ^ target) & 0xFF00 ? 2 : 1;
    cpu.pc = target;
  }
  return true;
}

void PushWord(Cpu& cpu, int word) {
  cpu.Push(static_cast<std::uint8_t>(word >> 8));
  cpu.Push(static_cast<std::uint8_t>(word));
}

void Call(Cpu& cpu) {
  const std::uint16_t target = cpu.FetchWord();
  PushWord(cpu, cpu.pc - 1);
  cpu.pc = target;
}

struct Single {
  std::uint8_t opcode;
  std::uint64_t cycles;
  void (*perform)(Cpu&);
};

constexpr Single kSingles[] = {
    {0x20, 6, Call},
    {0x60, 6, [](Cpu& cpu) { cpu.ReturnFromSubroutine(); }},
    {0x40, 6, [](Cpu& cpu) { cpu.ReturnFromInterrupt(); }},
    {0x4C, 3, [](Cpu& cpu) { cpu.pc = cpu.FetchWord(); }},
    {0x6C, 5, [](Cpu& cpu) { cpu.pc = PointerAt(cpu, cpu.FetchWord()); }},
    {0x48, 3, [](Cpu& cpu) { cpu.Push(cpu.a); }},
    {0x08, 3, [](Cpu& cpu) { cpu.Push(cpu.status); }},
    {0x68, 4, [](Cpu& cpu) { cpu.a = Judged(cpu, cpu.Pull()); }},
    {0x28, 4, [](Cpu& cpu) { cpu.status = cpu.Pull(); }},
    {0x9A, 2, [](Cpu& cpu) { cpu.stack = cpu.x; }},
    {0xBA, 2, [](Cpu& cpu) { cpu.x = Judged(cpu, cpu.stack); }},
    {0xAA, 2, [](Cpu& cpu) { cpu.x = Judged(cpu, cpu.a); }},
    {0x8A, 2, [](Cpu& cpu) { cpu.a = Judged(cpu, cpu.x); }},
    {0xA8, 2, [](Cpu& cpu) { cpu.y = Judged(cpu, cpu.a); }},
    {0x98, 2, [](Cpu& cpu) { cpu.a = Judged(cpu, cpu.y); }},
    {0xE8, 2, [](Cpu& cpu) { cpu.x = Judged(cpu, cpu.x + 1); }},
    {0xCA, 2, [](Cpu& cpu) { cpu.x = Judged(cpu, cpu.x - 1); }},
    {0xC8, 2, [](Cpu& cpu) { cpu.y = Judged(cpu, cpu.y + 1); }},
    {0x88, 2, [](Cpu& cpu) { cpu.y = Judged(cpu, cpu.y - 1); }},
    {0x18, 2, [](Cpu& cpu) { cpu.Set(Cpu::kCarry, false); }},
    {0x38, 2, [](Cpu& cpu) { cpu.Set(Cpu::kCarry, true); }},
    {0x58, 2, [](Cpu& cpu) { cpu.Set(Cpu::kInterruptsOff, false); }},
    {0x78, 2, [](Cpu& cpu) { cpu.Set(Cpu::kInterruptsOff, true); }},
    {0xB8, 2, [](Cpu& cpu) { cpu.Set(Cpu::kOverflow, false); }},
    {0xD8, 2, [](Cpu& cpu) { cpu.Set(Cpu::kDecimal, false); }},
    {0xF8, 2, [](Cpu& cpu) { cpu.Set(Cpu::kDecimal, true); }},
    {0xEA, 2, [](Cpu&) {}},
};

}  // namespace

void Cpu6502::Step() {
  const std::uint16_t at = pc;
  const std::uint8_t opcode = FetchByte();
  if (Branch(*this, opcode) || UseOperand(*this, opcode)) return;
  const auto* const single =
      std::find_if(std::begin(kSingles), std::end(kSingles), [=](const Single& one) { return one.opcode == opcode; });
  if (single == std::end(kSingles)) {
    throw MachineCrash("opcode " + std::to_string(opcode) + " at " + std::to_string(at) + " is not documented");
  }
  cycles += single->cycles;
  single->perform(*this);
}

void Cpu6502::Interrupt(std::uint16_t vector) {
  PushWord(*this, pc);
  Push(status);
  Set(kInterruptsOff, true);
  pc = ReadWord(vector, static_cast<std::uint16_t>(vector + 1));
  cycles += 7;
}

void Cpu6502::ReturnFromSubroutine() {
  const int low = Pull();
  pc = static_cast<std::uint16_t>((low | Pull() << 8) + 1);
}

void Cpu6502::ReturnFromInterrupt() {
  status = Pull();
  const int low = Pull();
  pc = static_cast<std::uint16_t>(low | Pull() << 8);
}

void Cpu6502::Push(std::uint8_t value) {
  bus.Write(static_cast<std::uint16_t>(0x100 + stack--), value);
}

std::uint8_t Cpu6502::Pull() {
  return bus.Read(static_cast<std::uint16_t>(0x100 + ++stack));
}

std::uint16_t Cpu6502::FetchWord() {
  const int low = FetchByte();
  return static_cast<std::uint16_t>(low | FetchByte() << 8);
}

std::uint16_t Cpu6502::ReadWord(std::uint16_t low, std::uint16_t high) {
  const int low_byte = bus.Read(low);
  return static_cast<std::uint16_t>(low_byte | bus.Read(high) << 8);
}

}  // namespace kelvo::c64
