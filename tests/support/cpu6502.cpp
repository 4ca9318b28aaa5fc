#include "support/cpu6502.h"

#include <array>
#include <string>

namespace kelvo::support {

namespace {

enum class Mode {
  kImmediate,
  kZeroPage,
  kZeroPageX,
  kZeroPageY,
  kAbsolute,
  kAbsoluteX,
  kAbsoluteY,
  kIndirectX,
  kIndirectY,
  kAccumulator,
  kImplied,
  kBranch,
  kIndirect,
  kCount
};

// What an instruction does with its operand decides its cycles.
enum class Access { kRead, kStore, kModify, kOther };

constexpr int kModes = static_cast<int>(Mode::kCount);

// Cycles by mode; reads through an index take one more when they cross a page.
constexpr std::array<int, kModes> kReadCycles{2, 3, 4, 4, 4, 4, 4, 6, 5, 2, 2, 2, 0};
constexpr std::array<int, kModes> kStoreCycles{0, 3, 4, 4, 4, 5, 5, 6, 6, 0, 0, 0, 0};
constexpr std::array<int, kModes> kModifyCycles{0, 5, 6, 0, 6, 7, 0, 0, 0, 2, 0, 0, 0};

}  // namespace

// Where an instruction finds its operand: an address, or the accumulator.
struct Operand {
  Mode mode;
  std::uint16_t address;
};

// What the instructions do. All of them take an operand, so that one table holds them.
struct Instructions {
  using Cpu = Cpu6502;

  static std::uint8_t Load(Cpu& cpu, Operand operand) {
    return operand.mode == Mode::kAccumulator ? cpu.a : cpu.bus_.Read(operand.address);
  }
  static void Store(Cpu& cpu, Operand operand, std::uint8_t value) {
    if (operand.mode == Mode::kAccumulator) {
      cpu.a = value;
    } else {
      cpu.bus_.Write(operand.address, value);
    }
  }
  static void Judge(Cpu& cpu, std::uint8_t value) {
    cpu.Set(Cpu::kZero, value == 0);
    cpu.Set(Cpu::kNegative, value >= 0x80);
  }
  static void Into(Cpu& cpu, std::uint8_t& target, int value) {
    target = static_cast<std::uint8_t>(value);
    Judge(cpu, target);
  }
  static void Compare(Cpu& cpu, std::uint8_t left, std::uint8_t right) {
    cpu.Set(Cpu::kCarry, left >= right);
    Judge(cpu, static_cast<std::uint8_t>(left - right));
  }
  static void Add(Cpu& cpu, std::uint8_t value) {
    const int sum = cpu.a + value + (cpu.Has(Cpu::kCarry) ? 1 : 0);
    cpu.Set(Cpu::kCarry, sum > 0xFF);
    cpu.Set(Cpu::kOverflow, (~(cpu.a ^ value) & (cpu.a ^ sum) & 0x80) != 0);
    Into(cpu, cpu.a, sum);
  }
  static void Modify(Cpu& cpu, Operand operand, std::uint8_t value) {
    Store(cpu, operand, value);
    Judge(cpu, value);
  }
  static void ShiftLeft(Cpu& cpu, Operand operand, int low_bit) {
    const std::uint8_t value = Load(cpu, operand);
    cpu.Set(Cpu::kCarry, value >= 0x80);
    Modify(cpu, operand, static_cast<std::uint8_t>(value << 1 | low_bit));
  }
  static void ShiftRight(Cpu& cpu, Operand operand, int high_bit) {
    const std::uint8_t value = Load(cpu, operand);
    cpu.Set(Cpu::kCarry, (value & 1) != 0);
    Modify(cpu, operand, static_cast<std::uint8_t>(value >> 1 | high_bit << 7));
  }
  static int Carry(const Cpu& cpu) { return cpu.Has(Cpu::kCarry) ? 1 : 0; }
  static void Branch(Cpu& cpu, Operand to, bool taken) {
    if (!taken) return;
    cpu.cycles += (cpu.pc ^ to.address) & 0xFF00 ? 2 : 1;
    cpu.pc = to.address;
  }

  static void Lda(Cpu& c, Operand o) { Into(c, c.a, Load(c, o)); }
  static void Ldx(Cpu& c, Operand o) { Into(c, c.x, Load(c, o)); }
  static void Ldy(Cpu& c, Operand o) { Into(c, c.y, Load(c, o)); }
  static void Sta(Cpu& c, Operand o) { Store(c, o, c.a); }
  static void Stx(Cpu& c, Operand o) { Store(c, o, c.x); }
  static void Sty(Cpu& c, Operand o) { Store(c, o, c.y); }
  static void Ora(Cpu& c, Operand o) { Into(c, c.a, c.a | Load(c, o)); }
  static void And(Cpu& c, Operand o) { Into(c, c.a, c.a & Load(c, o)); }
  static void Eor(Cpu& c, Operand o) { Into(c, c.a, c.a ^ Load(c, o)); }
  static void Adc(Cpu& c, Operand o) { Add(c, Load(c, o)); }
  static void Sbc(Cpu& c, Operand o) { Add(c, static_cast<std::uint8_t>(~Load(c, o))); }
  static void Cmp(Cpu& c, Operand o) { Compare(c, c.a, Load(c, o)); }
  static void Cpx(Cpu& c, Operand o) { Compare(c, c.x, Load(c, o)); }
  static void Cpy(Cpu& c, Operand o) { Compare(c, c.y, Load(c, o)); }
  static void Bit(Cpu& c, Operand o) {
    const std::uint8_t value = Load(c, o);
    Judge(c, value);
    c.Set(Cpu::kZero, (c.a & value) == 0);
    c.Set(Cpu::kOverflow, (value & 0x40) != 0);
  }
  static void Asl(Cpu& c, Operand o) { ShiftLeft(c, o, 0); }
  static void Rol(Cpu& c, Operand o) { ShiftLeft(c, o, Carry(c)); }
  static void Lsr(Cpu& c, Operand o) { ShiftRight(c, o, 0); }
  static void Ror(Cpu& c, Operand o) { ShiftRight(c, o, Carry(c)); }
  static void Inc(Cpu& c, Operand o) { Modify(c, o, static_cast<std::uint8_t>(Load(c, o) + 1)); }
  static void Dec(Cpu& c, Operand o) { Modify(c, o, static_cast<std::uint8_t>(Load(c, o) - 1)); }

  static void Bpl(Cpu& c, Operand o) { Branch(c, o, !c.Has(Cpu::kNegative)); }
  static void Bmi(Cpu& c, Operand o) { Branch(c, o, c.Has(Cpu::kNegative)); }
  static void Bvc(Cpu& c, Operand o) { Branch(c, o, !c.Has(Cpu::kOverflow)); }
  static void Bvs(Cpu& c, Operand o) { Branch(c, o, c.Has(Cpu::kOverflow)); }
  static void Bcc(Cpu& c, Operand o) { Branch(c, o, !c.Has(Cpu::kCarry)); }
  static void Bcs(Cpu& c, Operand o) { Branch(c, o, c.Has(Cpu::kCarry)); }
  static void Bne(Cpu& c, Operand o) { Branch(c, o, !c.Has(Cpu::kZero)); }
  static void Beq(Cpu& c, Operand o) { Branch(c, o, c.Has(Cpu::kZero)); }

  static void Jmp(Cpu& c, Operand o) { c.pc = o.address; }
  static void Jsr(Cpu& c, Operand o) {
    const int last = c.pc - 1;
    c.Push(static_cast<std::uint8_t>(last >> 8));
    c.Push(static_cast<std::uint8_t>(last));
    c.pc = o.address;
  }
  static void Rts(Cpu& c, Operand) { c.ReturnFromSubroutine(); }
  static void Rti(Cpu& c, Operand) { c.ReturnFromInterrupt(); }
  static void Brk(Cpu& c, Operand) {
    ++c.pc;
    c.Set(Cpu::kBreak, true);
    c.Interrupt(0xFFFE);
    c.Set(Cpu::kBreak, false);
  }
  static void Pha(Cpu& c, Operand) { c.Push(c.a); }
  static void Php(Cpu& c, Operand) { c.Push(c.status | Cpu::kBreak | Cpu::kUnused); }
  static void Pla(Cpu& c, Operand) { Into(c, c.a, c.Pull()); }
  static void Plp(Cpu& c, Operand) { c.status = static_cast<std::uint8_t>((c.Pull() | Cpu::kUnused) & ~Cpu::kBreak); }

  static void Tax(Cpu& c, Operand) { Into(c, c.x, c.a); }
  static void Tay(Cpu& c, Operand) { Into(c, c.y, c.a); }
  static void Tsx(Cpu& c, Operand) { Into(c, c.x, c.stack); }
  static void Txa(Cpu& c, Operand) { Into(c, c.a, c.x); }
  static void Tya(Cpu& c, Operand) { Into(c, c.a, c.y); }
  static void Txs(Cpu& c, Operand) { c.stack = c.x; }
  static void Inx(Cpu& c, Operand) { Into(c, c.x, c.x + 1); }
  static void Iny(Cpu& c, Operand) { Into(c, c.y, c.y + 1); }
  static void Dex(Cpu& c, Operand) { Into(c, c.x, c.x - 1); }
  static void Dey(Cpu& c, Operand) { Into(c, c.y, c.y - 1); }
  static void Clc(Cpu& c, Operand) { c.Set(Cpu::kCarry, false); }
  static void Sec(Cpu& c, Operand) { c.Set(Cpu::kCarry, true); }
  static void Cli(Cpu& c, Operand) { c.Set(Cpu::kInterruptsOff, false); }
  static void Sei(Cpu& c, Operand) { c.Set(Cpu::kInterruptsOff, true); }
  static void Cld(Cpu& c, Operand) { c.Set(Cpu::kDecimal, false); }
  static void Sed(Cpu& c, Operand) { c.Set(Cpu::kDecimal, true); }
  static void Clv(Cpu& c, Operand) { c.Set(Cpu::kOverflow, false); }
  static void Nop(Cpu&, Operand) {}

  static Operand Locate(Cpu& cpu, Mode mode, Access access);
};

namespace {

using I = Instructions;
using Action = void (*)(Cpu6502&, Operand);

struct Row {
  Action action;
  Access access;
  std::array<std::uint8_t, 10> opcodes;  // by mode, kImmediate to kAccumulator; 0: there is none
};

constexpr Row kRows[] = {
    // #, zp, zp x, zp y, abs, abs x, abs y, (zp,x), (zp),y, a
    {I::Ora, Access::kRead, {0x09, 0x05, 0x15, 0, 0x0D, 0x1D, 0x19, 0x01, 0x11}},
    {I::And, Access::kRead, {0x29, 0x25, 0x35, 0, 0x2D, 0x3D, 0x39, 0x21, 0x31}},
    {I::Eor, Access::kRead, {0x49, 0x45, 0x55, 0, 0x4D, 0x5D, 0x59, 0x41, 0x51}},
    {I::Adc, Access::kRead, {0x69, 0x65, 0x75, 0, 0x6D, 0x7D, 0x79, 0x61, 0x71}},
    {I::Sta, Access::kStore, {0, 0x85, 0x95, 0, 0x8D, 0x9D, 0x99, 0x81, 0x91}},
    {I::Lda, Access::kRead, {0xA9, 0xA5, 0xB5, 0, 0xAD, 0xBD, 0xB9, 0xA1, 0xB1}},
    {I::Cmp, Access::kRead, {0xC9, 0xC5, 0xD5, 0, 0xCD, 0xDD, 0xD9, 0xC1, 0xD1}},
    {I::Sbc, Access::kRead, {0xE9, 0xE5, 0xF5, 0, 0xED, 0xFD, 0xF9, 0xE1, 0xF1}},
    {I::Asl, Access::kModify, {0, 0x06, 0x16, 0, 0x0E, 0x1E, 0, 0, 0, 0x0A}},
    {I::Rol, Access::kModify, {0, 0x26, 0x36, 0, 0x2E, 0x3E, 0, 0, 0, 0x2A}},
    {I::Lsr, Access::kModify, {0, 0x46, 0x56, 0, 0x4E, 0x5E, 0, 0, 0, 0x4A}},
    {I::Ror, Access::kModify, {0, 0x66, 0x76, 0, 0x6E, 0x7E, 0, 0, 0, 0x6A}},
    {I::Dec, Access::kModify, {0, 0xC6, 0xD6, 0, 0xCE, 0xDE}},
    {I::Inc, Access::kModify, {0, 0xE6, 0xF6, 0, 0xEE, 0xFE}},
    {I::Stx, Access::kStore, {0, 0x86, 0, 0x96, 0x8E}},
    {I::Ldx, Access::kRead, {0xA2, 0xA6, 0, 0xB6, 0xAE, 0, 0xBE}},
    {I::Sty, Access::kStore, {0, 0x84, 0x94, 0, 0x8C}},
    {I::Ldy, Access::kRead, {0xA0, 0xA4, 0xB4, 0, 0xAC, 0xBC}},
    {I::Cpx, Access::kRead, {0xE0, 0xE4, 0, 0, 0xEC}},
    {I::Cpy, Access::kRead, {0xC0, 0xC4, 0, 0, 0xCC}},
    {I::Bit, Access::kRead, {0, 0x24, 0, 0, 0x2C}},
};

struct Single {
  Action action;
  std::uint8_t opcode;
  Mode mode;
  int cycles;
};

constexpr Single kSingles[] = {
    {I::Bpl, 0x10, Mode::kBranch, 2},   {I::Bmi, 0x30, Mode::kBranch, 2},   {I::Bvc, 0x50, Mode::kBranch, 2},
    {I::Bvs, 0x70, Mode::kBranch, 2},   {I::Bcc, 0x90, Mode::kBranch, 2},   {I::Bcs, 0xB0, Mode::kBranch, 2},
    {I::Bne, 0xD0, Mode::kBranch, 2},   {I::Beq, 0xF0, Mode::kBranch, 2},   {I::Jmp, 0x4C, Mode::kAbsolute, 3},
    {I::Jmp, 0x6C, Mode::kIndirect, 5}, {I::Jsr, 0x20, Mode::kAbsolute, 6}, {I::Rts, 0x60, Mode::kImplied, 6},
    {I::Rti, 0x40, Mode::kImplied, 6},  {I::Brk, 0x00, Mode::kImplied, 0},  {I::Pha, 0x48, Mode::kImplied, 3},
    {I::Php, 0x08, Mode::kImplied, 3},  {I::Pla, 0x68, Mode::kImplied, 4},  {I::Plp, 0x28, Mode::kImplied, 4},
    {I::Tax, 0xAA, Mode::kImplied, 2},  {I::Tay, 0xA8, Mode::kImplied, 2},  {I::Tsx, 0xBA, Mode::kImplied, 2},
    {I::Txa, 0x8A, Mode::kImplied, 2},  {I::Tya, 0x98, Mode::kImplied, 2},  {I::Txs, 0x9A, Mode::kImplied, 2},
    {I::Inx, 0xE8, Mode::kImplied, 2},  {I::Iny, 0xC8, Mode::kImplied, 2},  {I::Dex, 0xCA, Mode::kImplied, 2},
    {I::Dey, 0x88, Mode::kImplied, 2},  {I::Clc, 0x18, Mode::kImplied, 2},  {I::Sec, 0x38, Mode::kImplied, 2},
    {I::Cli, 0x58, Mode::kImplied, 2},  {I::Sei, 0x78, Mode::kImplied, 2},  {I::Cld, 0xD8, Mode::kImplied, 2},
    {I::Sed, 0xF8, Mode::kImplied, 2},  {I::Clv, 0xB8, Mode::kImplied, 2},  {I::Nop, 0xEA, Mode::kImplied, 2},
};

struct Instruction {
  Action action = nullptr;
  Mode mode = Mode::kImplied;
  Access access = Access::kOther;
  int cycles = 0;
};

int CyclesOf(Access access, std::size_t mode) {
  if (access == Access::kRead) return kReadCycles[mode];
  return access == Access::kStore ? kStoreCycles[mode] : kModifyCycles[mode];
}

std::array<Instruction, 256> MakeInstructions() {
  std::array<Instruction, 256> all;
  for (const Row& row : kRows) {
    for (std::size_t mode = 0; mode < row.opcodes.size(); ++mode) {
      if (row.opcodes[mode] == 0) continue;
      all[row.opcodes[mode]] = {row.action, static_cast<Mode>(mode), row.access, CyclesOf(row.access, mode)};
    }
  }
  for (const Single& one : kSingles) all[one.opcode] = {one.action, one.mode, Access::kOther, one.cycles};
  return all;
}

// `base` + `index`, with the cycle that a read across a page takes.
std::uint16_t Indexed(Cpu6502& cpu, std::uint16_t base, std::uint8_t index, Access access) {
  const auto address = static_cast<std::uint16_t>(base + index);
  if (access == Access::kRead && ((base ^ address) & 0xFF00) != 0) ++cpu.cycles;
  return address;
}

std::uint16_t InZeroPage(int address) {
  return static_cast<std::uint16_t>(address & 0xFF);
}

}  // namespace

Operand Instructions::Locate(Cpu& cpu, Mode mode, Access access) {
  const auto at = [mode](std::uint16_t address) { return Operand{mode, address}; };
  switch (mode) {
    case Mode::kImmediate:
      return at(cpu.pc++);
    case Mode::kZeroPage:
      return at(cpu.FetchByte());
    case Mode::kZeroPageX:
      return at(InZeroPage(cpu.FetchByte() + cpu.x));
    case Mode::kZeroPageY:
      return at(InZeroPage(cpu.FetchByte() + cpu.y));
    case Mode::kAbsolute:
      return at(cpu.FetchWord());
    case Mode::kAbsoluteX:
      return at(Indexed(cpu, cpu.FetchWord(), cpu.x, access));
    case Mode::kAbsoluteY:
      return at(Indexed(cpu, cpu.FetchWord(), cpu.y, access));
    case Mode::kIndirectX: {
      const int pointer = cpu.FetchByte() + cpu.x;
      return at(cpu.ReadWord(InZeroPage(pointer), InZeroPage(pointer + 1)));
    }
    case Mode::kIndirectY: {
      const int pointer = cpu.FetchByte();
      return at(Indexed(cpu, cpu.ReadWord(InZeroPage(pointer), InZeroPage(pointer + 1)), cpu.y, access));
    }
    case Mode::kBranch: {
      const auto distance = static_cast<std::int8_t>(cpu.FetchByte());
      return at(static_cast<std::uint16_t>(cpu.pc + distance));
    }
    case Mode::kIndirect: {
      // The high byte comes from the same page, even where the pointer lies at its end.
      const std::uint16_t pointer = cpu.FetchWord();
      return at(cpu.ReadWord(pointer, static_cast<std::uint16_t>((pointer & 0xFF00) | InZeroPage(pointer + 1))));
    }
    default:
      return at(0);
  }
}

void Cpu6502::Step() {
  static const std::array<Instruction, 256> kInstructions = MakeInstructions();
  const std::uint16_t at = pc;
  const std::uint8_t opcode = FetchByte();
  const Instruction& instruction = kInstructions[opcode];
  if (instruction.action == nullptr) {
    throw MachineFault("opcode " + std::to_string(opcode) + " at " + std::to_string(at) + " is not documented");
  }
  cycles += static_cast<std::uint64_t>(instruction.cycles);
  instruction.action(*this, Instructions::Locate(*this, instruction.mode, instruction.access));
}

void Cpu6502::Interrupt(std::uint16_t vector) {
  Push(static_cast<std::uint8_t>(pc >> 8));
  Push(static_cast<std::uint8_t>(pc));
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
  status = static_cast<std::uint8_t>((Pull() | kUnused) & ~kBreak);
  const int low = Pull();
  pc = static_cast<std::uint16_t>(low | Pull() << 8);
}

void Cpu6502::Push(std::uint8_t value) {
  bus_.Write(static_cast<std::uint16_t>(0x100 + stack--), value);
}

std::uint8_t Cpu6502::Pull() {
  return bus_.Read(static_cast<std::uint16_t>(0x100 + ++stack));
}

std::uint16_t Cpu6502::FetchWord() {
  const int low = FetchByte();
  return static_cast<std::uint16_t>(low | FetchByte() << 8);
}

std::uint16_t Cpu6502::ReadWord(std::uint16_t low, std::uint16_t high) {
  const int low_byte = bus_.Read(low);
  return static_cast<std::uint16_t>(low_byte | bus_.Read(high) << 8);
}

}  // namespace kelvo::support
