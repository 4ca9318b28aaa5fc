// The test machine itself: what it computes, and that it notices what a sound program does not do.
#include "support/c64_machine.h"

#include <gtest/gtest.h>

namespace kelvo::support {
namespace {

using Code = std::vector<std::uint8_t>;

// A PRG that runs `code` at $080D from the BASIC line 10 SYS2061.
Code Program(const Code& code) {
  Code prg{0x01, 0x08, 0x0B, 0x08, 0x0A, 0x00, 0x9E, '2', '0', '6', '1', 0, 0, 0};
  for (const std::uint8_t byte : code) prg.push_back(byte);
  return prg;
}

TEST(TestMachine, ComputesAndCounts) {
  struct Case {
    std::string_view what;
    int a, x, flags;
    std::uint64_t cycles;  // without the RTS
    Code code;
  };
  constexpr int kFlags = Cpu6502::kCarry | Cpu6502::kZero | Cpu6502::kOverflow | Cpu6502::kNegative;
  const int c = Cpu6502::kCarry, z = Cpu6502::kZero, v = Cpu6502::kOverflow, n = Cpu6502::kNegative;
  const Case cases[] = {
      {"add with overflow", 0xA0, 0, v | n, 6, {0x18, 0xA9, 0x50, 0x69, 0x50}},
      {"subtract to zero", 0, 0, c | z, 6, {0x38, 0xA9, 0x50, 0xE9, 0x50}},
      {"subtract with borrow", 0x80, 0, n, 6, {0x18, 0xA9, 0x00, 0xE9, 0x7F}},
      {"rotate through carry", 0x40, 0, 0, 10, {0x38, 0xA9, 0x80, 0x2A, 0x6A, 0x4A}},
      {"loop", 0, 0, z, 16, {0xA2, 0x03, 0xCA, 0xD0, 0xFD}},
      {"read across a page", 7, 0xFF, 0, 16, {0xA2, 0xFF, 0xA9, 7, 0x85, 2, 0xB5, 3, 0xBD, 3, 0xFF}},
      {"pointer", 2, 0, 0, 21, {0xA9, 2, 0x85, 0xFB, 0xA0, 0, 0x84, 0xFC, 0x91, 0xFB, 0xB1, 0xFB}},
      {"call", 0x33, 9, 0, 23, {0x20, 0x14, 0x08, 0xA2, 0x09, 0x60, 0xEA, 0xA9, 0x33, 0x48, 0x68, 0x60}},
      {"compare and bit", 1, 0, n | v, 12, {0xA9, 0xC0, 0x85, 0x02, 0xA9, 0x01, 0x24, 0x02, 0xC9, 0x02}},
      {"count in memory", 0xFF, 0, z, 13, {0xA9, 0xFF, 0x85, 0x02, 0xE6, 0x02, 0xA6, 0x02}},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.what);
    C64Machine machine;
    Code code = expected.code;
    code.push_back(0x60);
    machine.Load(Program(code));
    ASSERT_EQ(machine.Run(), C64Machine::Ending::kReturns);
    EXPECT_EQ(machine.Cpu().a, expected.a);
    EXPECT_EQ(machine.Cpu().x, expected.x);
    EXPECT_EQ(machine.Cpu().status & kFlags, expected.flags);
    EXPECT_EQ(machine.Cpu().cycles, expected.cycles + 6);
  }
}

TEST(TestMachine, NoticesWhatASoundProgramDoesNotDo) {
  struct Case {
    std::string_view what;
    Code code;
  };
  for (const Case& bad : {
           Case{"runs into memory that nobody wrote", {0x4C, 0x00, 0x40}},
           {"calls a KERNAL routine without a trap", {0x20, 0xD2, 0xFF}},
           {"reads ROM as data", {0xAD, 0x00, 0xA0}},
           {"writes BASIC's pointers", {0x85, 0x2B}},
           {"is interrupted without KERNAL", {0xA9, 0x35, 0x85, 0x01, 0x4C, 0x14, 0x08, 0x4C, 0x11, 0x08}},
           {"undocumented opcode", {0x02}},
           {"writes a shown bitmap", {0xA9, 0x3B, 0x8D, 0x11, 0xD0, 0x8D, 0x00, 0x04}},
           {"never ends", {0xEA, 0x4C, 0x0D, 0x08}},
       }) {
    C64Machine machine;
    machine.Load(Program(bad.code));
    EXPECT_THROW(machine.Run(100'000), MachineFault) << bad.what;
  }
}

TEST(TestMachine, ShowsWhatTheVicSees) {
  // LDX #5 / STX $D020 / LDA #$FA / STA $D801 / LDA #$02 / STA $DD00 / LDA #$78 / STA $D018 / STA $5C00 / SEI / JMP *
  C64Machine machine;
  machine.Load(Program({0xA2, 0x05, 0x8E, 0x20, 0xD0, 0xA9, 0xFA, 0x8D, 0x01, 0xD8, 0xA9, 0x02, 0x8D, 0x00,
                        0xDD, 0xA9, 0x78, 0x8D, 0x18, 0xD0, 0x8D, 0x00, 0x5C, 0x78, 0x4C, 0x25, 0x08}));
  ASSERT_EQ(machine.Run(), C64Machine::Ending::kLoops);
  const C64Machine::Shown shown = machine.Show();
  EXPECT_EQ(shown.bank, 1);
  EXPECT_EQ(shown.border, 5);
  EXPECT_EQ(shown.colours[1], 0x0A);
  EXPECT_EQ(shown.screen[0], 0x78);
  EXPECT_EQ(shown.bitmap.size(), 8000U);
  EXPECT_EQ(machine.Cpu().stack, machine.StackAtStart());
}

TEST(TestMachine, CallsTrapsInsteadOfTheKernal) {
  C64Machine machine;
  int length = 0;
  machine.Trap(0xFFBD, [&](Cpu6502& cpu) { length = cpu.a; });
  machine.PressRestoreEvery(50);
  machine.Load(Program({0xA9, 0x0B, 0x20, 0xBD, 0xFF, 0x60}));
  EXPECT_EQ(machine.Run(), C64Machine::Ending::kReturns);
  EXPECT_EQ(length, 11);
}

}  // namespace
}  // namespace kelvo::support
