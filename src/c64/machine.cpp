#include "c64/machine.h"

#include <algorithm>
#include <string>

#include "app/number_text.h"

namespace kelvo::c64 {
namespace {

constexpr std::uint16_t kBasicLine = 0x0801, kBackInBasic = 0xE147, kIrqHandler = 0xEA31, kNmiHandler = 0xFE47;
constexpr std::uint8_t kSys = 0x9E;
constexpr std::uint64_t kJiffy = 16421;
constexpr std::uint64_t kInterruptEntry = 29;  // from the KERNAL's first instruction to the vector in RAM
constexpr std::size_t kControl = 0x11, kLine = 0x12, kEvents = 0x19, kInterruptingEvents = 0x1A;  // of the VIC
constexpr std::uint8_t kLineEvent = 1;

// Zero page bytes that a program may change and still return to BASIC, or be stopped by STOP and RESTORE.
constexpr std::pair<int, int> kFreeZeroPage[] = {{0x00, 0x06}, {0x22, 0x2A}, {0x57, 0x72}, {0x8B, 0x8F}, {0xFB, 0xFF}};

bool IsFree(int address) {
  return std::any_of(std::begin(kFreeZeroPage), std::end(kFreeZeroPage),
                     [=](auto range) { return address >= range.first && address <= range.second; });
}

// Registers of the VIC that read as they were written.
bool KeepsItsValue(int address) {
  return (address >= 0xD000 && address <= 0xD010) || (address >= 0xD015 && address <= 0xD018) ||
         (address >= 0xD020 && address <= 0xD02E);
}

}  // namespace

Machine::Machine() {
  for (std::size_t i = 0; i < ram_.size(); ++i) ram_[i] = static_cast<std::uint8_t>(i * 37 + (i >> 8) * 11);
  for (std::size_t i = 0x800; i < 0xC00; ++i) io_[i] = static_cast<std::uint8_t>(i * 5);
  ram_[0x00] = 0x2F;
  ram_[0x01] = 0x37;
  const std::pair<std::uint16_t, std::uint16_t> vectors[] = {{0x0314, kIrqHandler}, {0x0318, kNmiHandler}};
  for (const auto& [vector, handler] : vectors) {
    Poke(vector, static_cast<std::uint8_t>(handler));
    Poke(static_cast<std::uint16_t>(vector + 1), static_cast<std::uint8_t>(handler >> 8));
    traps_[handler] = nullptr;
  }
  const std::pair<std::size_t, std::uint8_t> registers[] = {{0x11, 0x1B},  {0x16, 0xC8}, {0x18, 0x15},  {0x15, 0xFF},
                                                            {0x20, 14},    {0x21, 6},    {0xC01, 0xFF}, {0xC0D, 0x81},
                                                            {0xD00, 0x97}, {0xD02, 0x3F}};
  for (const auto& [index, value] : registers) io_[index] = value;
}

void Machine::Poke(std::uint16_t address, std::uint8_t value) {
  ram_[address] = value;
  written_[address] = true;
}

void Machine::Load(std::span<const std::uint8_t> prg) {
  if (prg.size() < 3) throw MachineCrash("the PRG is empty");
  std::size_t address = static_cast<std::size_t>(prg[0] | prg[1] << 8);
  for (const std::uint8_t byte : prg.subspan(2)) {
    if (address >= 0xD000) throw MachineCrash("the PRG reaches into I/O");
    Poke(static_cast<std::uint16_t>(address++), byte);
  }
}

std::uint16_t Machine::SysAddress() const {
  std::uint16_t at = kBasicLine + 4;  // behind the next line's address and the line's number
  if (ram_[at++] != kSys) throw MachineCrash("the BASIC line does not begin with SYS");
  while (ram_[at] == ' ') ++at;
  int address = 0;
  for (; ram_[at] >= '0' && ram_[at] <= '9'; ++at) address = address * 10 + ram_[at] - '0';
  const int next = ram_[kBasicLine] | ram_[kBasicLine + 1] << 8;
  if (ram_[at] != 0 || next != at + 1 || ram_[at + 1] != 0 || ram_[at + 2] != 0) {
    throw MachineCrash("the BASIC program does not end behind its line");
  }
  return static_cast<std::uint16_t>(address);
}

void Machine::StartFrom(std::uint16_t address) {
  cpu_.stack = unclean_ ? 0x20 : 0xF8;
  cpu_.Set(Cpu6502::kDecimal, unclean_);
  cpu_.Push((kBackInBasic - 1) >> 8);
  cpu_.Push((kBackInBasic - 1) & 0xFF);
  stack_at_start_ = cpu_.stack;
  cpu_.pc = address;
  next_restore_ = restore_every_;
  next_jiffy_ = kJiffy;
}

std::optional<Machine::Ending> Machine::RunOn(std::uint64_t cycles) {
  while (cpu_.cycles < cycles) {
    if (cpu_.pc == kBackInBasic && Chip(kBackInBasic) == Area::kRom) return Ending::kReturns;
    const std::uint16_t before = cpu_.pc;
    Interrupts();
    if (cpu_.Has(Cpu6502::kDecimal) && written_[cpu_.pc] && (ram_[cpu_.pc] & 0x63) == 0x61) {
      Fault("adding in decimal mode", cpu_.pc);
    }
    cpu_.Step();
    CallTrap();
    if (has_beam_) MoveBeam();
    if (cpu_.pc == before && ram_[before] == 0x4C) return Ending::kLoops;
  }
  return std::nullopt;
}

Machine::Ending Machine::RunFrom(std::uint16_t address, std::uint64_t most_cycles) {
  StartFrom(address);
  if (const auto ending = RunOn(most_cycles)) return *ending;
  Fault("no end in sight", cpu_.pc);
}

void Machine::Interrupts() {
  if (restore_every_ != 0 && cpu_.cycles >= next_restore_) {
    next_restore_ += restore_every_;
    cpu_.Interrupt(0xFFFA);
  } else if (IsInterrupted()) {
    cpu_.Interrupt(0xFFFE);
    if (Chip(0xFFFE) == Area::kRom) EnterKernal();
  } else {
    return;
  }
  CallTrap();
}

void Machine::EnterKernal() {
  for (const std::uint8_t value : {cpu_.a, cpu_.x, cpu_.y}) cpu_.Push(value);
  cpu_.cycles += kInterruptEntry;
}

bool Machine::IsInterrupted() {
  bool is_raised = has_beam_ && (io_[kEvents] & io_[kInterruptingEvents] & kLineEvent) != 0;
  if (cpu_.cycles >= next_jiffy_) {
    next_jiffy_ += kJiffy;
    is_raised = is_raised || (io_[0xC0D] & 1) != 0;
  }
  return is_raised && !cpu_.Has(Cpu6502::kInterruptsOff);
}

void Machine::MoveBeam() {
  while (lines_begun_ < cpu_.cycles / kLineCycles) BeginLine(static_cast<int>(++lines_begun_ % kLines));
}

void Machine::BeginLine(int line) {
  const int on_screen = line - kFirstLine;
  const bool is_on = (io_[kControl] & 0x10) != 0;
  if (is_on && on_screen >= 0 && on_screen < 200 && on_screen % 8 == 0) cpu_.cycles += kStolenCycles;
  if (line == (io_[kLine] | (io_[kControl] & 0x80) << 1)) io_[kEvents] |= kLineEvent;
}

// A trap without a routine is the KERNAL's own answer to an interrupt, which changes nothing that a program sees.
void Machine::CallTrap() {
  if (Chip(cpu_.pc) != Area::kRom || cpu_.pc == kBackInBasic) return;
  const auto trap = traps_.find(cpu_.pc);
  if (trap == traps_.end()) Fault("jump into a ROM", cpu_.pc);
  if (trap->second) {
    if (cpu_.Has(Cpu6502::kDecimal)) Fault("calling the KERNAL in decimal mode", cpu_.pc);
    trap->second(cpu_);
    cpu_.ReturnFromSubroutine();
    return;
  }
  if (trap->first == kIrqHandler) cpu_.y = cpu_.Pull(), cpu_.x = cpu_.Pull(), cpu_.a = cpu_.Pull();
  cpu_.cycles += 200;
  cpu_.ReturnFromInterrupt();
}

Machine::Area Machine::Chip(std::uint16_t address) const {
  const int port = (ram_[1] | ~ram_[0]) & 7;
  const bool basic = (port & 3) == 3, kernal = (port & 2) != 0, any = (port & 3) != 0;
  if (address >= 0xE000) return kernal ? Area::kRom : Area::kRam;
  if (address >= 0xD000) return !any ? Area::kRam : (port & 4) != 0 ? Area::kIo : Area::kRom;
  return address >= 0xA000 && address < 0xC000 && basic ? Area::kRom : Area::kRam;
}

std::uint8_t Machine::Read(std::uint16_t address) {
  const Area area = Chip(address);
  if (area != Area::kRom) return area == Area::kRam ? ram_[address] : ReadIo(address);
  // The KERNAL's interrupt entries go on through their vectors in RAM.
  if (address == 0xFFFE || address == 0xFFFF) return ram_[address - 0xFFFE + 0x0314];
  if (address == 0xFFFA || address == 0xFFFB) return ram_[address - 0xFFFA + 0x0318];
  Fault("reading a ROM as data", address);
}

std::uint8_t Machine::Fetch(std::uint16_t address) {
  if (Chip(address) != Area::kRam) Crash("running outside RAM", address);
  if (!written_[address]) Crash("running what nobody wrote", address);
  return ram_[address];
}

void Machine::Write(std::uint16_t address, std::uint8_t value) {
  if (!may_change_ && ShowsBitmap() && IsShown(address)) Fault("changing what is shown", address);
  if (Chip(address) == Area::kIo) return WriteIo(address, value);
  if (address < 0x100 && !IsFree(address)) Fault("writing a zero page byte that BASIC and KERNAL keep", address);
  Poke(address, value);
}

std::uint8_t Machine::ReadIo(std::uint16_t address) {
  if (const auto value = ReadBeam(address)) return *value;
  if (address < 0xD800 && !KeepsItsValue(address)) Fault("reading what the raster beam or the SID makes", address);
  const std::uint8_t value = io_[address - 0xD000U];
  if (address < 0xD800 || address >= 0xDC00) return value;
  open_bus_ = static_cast<std::uint8_t>(open_bus_ * 5 + 0x70);
  return static_cast<std::uint8_t>((value & 0x0F) | (open_bus_ & 0xF0));
}

std::optional<std::uint8_t> Machine::ReadBeam(std::uint16_t address) const {
  if (!has_beam_) return std::nullopt;
  const auto line = cpu_.cycles / kLineCycles % kLines;
  if (address == 0xD011) return static_cast<std::uint8_t>((io_[kControl] & 0x7F) | (line >> 8) << 7);
  if (address == 0xD012) return static_cast<std::uint8_t>(line);
  return std::nullopt;
}

void Machine::WriteIo(std::uint16_t address, std::uint8_t value) {
  const std::size_t index = address - 0xD000U;
  if (has_beam_ && index == kEvents) value = static_cast<std::uint8_t>(io_[kEvents] & ~value);  // a 1 takes one back
  if (index != 0xC0D && index != 0xD0D) {
    io_[index] = value;
    return;
  }
  const int sources = value & 0x1F;  // of interrupts, to be let through or masked
  io_[index] = static_cast<std::uint8_t>((value & 0x80) != 0 ? io_[index] | sources : io_[index] & ~sources);
}

bool Machine::IsShown(std::uint16_t address) const {
  if (Chip(address) == Area::kIo) {
    return (address >= 0xD800 && address < 0xDBE8) || address == 0xD016 || address == 0xD018 || address == 0xD021 ||
           address == 0xDD00 || address == 0xDD02;
  }
  const int offset = address - VicBank();
  const int bitmap = (io_[0x18] & 8) << 10, screen = (io_[0x18] & 0xF0) << 6;
  return (offset >= bitmap && offset < bitmap + 8000) || (offset >= screen && offset < screen + 1000);
}

int Machine::VicBank() const {
  const int lines = (io_[0xD00] | ~io_[0xD02]) & 3;  // lines that are no outputs are pulled up
  return (3 - lines) * 0x4000;
}

void Machine::Fault(const std::string& what, std::uint16_t address) const {
  throw MachineFault(Told(what, address));
}

void Machine::Crash(const std::string& what, std::uint16_t address) const {
  throw MachineCrash(Told(what, address));
}

std::string Machine::Told(const std::string& what, std::uint16_t address) const {
  return what + ": $" + app::ToHex(address, 4) + ", program counter $" + app::ToHex(cpu_.pc, 4) + " after " +
         std::to_string(cpu_.cycles) + " cycles";
}

}  // namespace kelvo::c64
