// c64-show: runs a program for the C64 and tells what it does and shows. `c64-show --help` tells how.
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "app/number_text.h"
#include "app/text.h"
#include "app/whole_file.h"
#include "arguments/tool_main.h"
#include "c64/kernal_disk.h"
#include "c64/machine.h"
#include "c64/screen.h"
#include "image_file.h"
#include "model/palette.h"

namespace kelvo::c64 {
namespace {

constexpr std::string_view kHelp =
    "usage: c64-show [-s ADDRESS] [-c CYCLES] PRG [IMAGE]\n"
    "Runs a program as a C64 without ROMs would, and shows the screen that it leaves.\n"
    "\n"
    "  -s ADDRESS  start there, in hexadecimal (default: the SYS of the program's BASIC line)\n"
    "  -c CYCLES   the most that it may take (default 20000000, about 20 seconds)\n"
    "  IMAGE       is written with what is shown: a .ppm, or a .png where this was built with Qt\n"
    "\n"
    "A program must end: by returning to BASIC, or by jumping to itself. Of the KERNAL it may save a file.\n"
    "Exit code: 0 it has ended, 1 it did what no sound program does, or a file is wrong, 2 the command line is "
    "wrong.\n";

constexpr std::size_t kMostOfAPrg = 0x10002;
constexpr double kCyclesPerSecond = 985248;  // of a PAL C64

struct Arguments {
  std::optional<std::uint16_t> start;
  std::uint64_t most_cycles = Machine::kMostCycles;
  std::string program, image;
};

template <typename Number>
Number NumberFrom(const char* text, int base = 10) {
  const auto number = text == nullptr ? std::nullopt : app::WholeNumber<Number>(text, base);
  if (!number) throw WrongUsage("a number is missing or wrong");
  return *number;
}

Arguments ArgumentsFrom(int argc, char** argv) {
  Arguments arguments;
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "-s") {
      arguments.start = NumberFrom<std::uint16_t>(argv[++i], 16);
    } else if (word == "-c") {
      arguments.most_cycles = static_cast<std::uint64_t>(NumberFrom<int>(argv[++i]));
    } else if (word.starts_with('-') || !arguments.image.empty()) {
      RefuseWord(word);
    } else {
      (arguments.program.empty() ? arguments.program : arguments.image) = word;
    }
  }
  if (arguments.program.empty()) throw WrongUsage("there is no program to run");
  return arguments;
}

std::string Hex(int address) {
  return "$" + app::ToHex(address, 4);
}

void Print(const char* what, const std::string& value) {
  std::printf("%-8s %s\n", what, value.c_str());
}

// True when the program came to its end.
bool RunTo(const Arguments& arguments, Machine& machine) {
  try {
    const auto ending =
        arguments.start ? machine.RunFrom(*arguments.start, arguments.most_cycles) : machine.Run(arguments.most_cycles);
    Print("ended", ending == Machine::Ending::kLoops ? "in a loop at " + Hex(machine.Cpu().pc) : "back in BASIC");
    return true;
  } catch (const MachineFault& fault) {
    Print("stopped", fault.what());
    return false;
  }
}

ToolExit Show(const Arguments& arguments) {
  const app::Bytes program = app::ReadWholeFile(arguments.program, kMostOfAPrg);
  Machine machine;
  KernalDisk disk(machine);
  machine.Load(program);
  const bool has_ended = RunTo(arguments, machine);
  const auto cycles = machine.Cpu().cycles;
  std::printf("%-8s %llu, %.2f s\n", "cycles", static_cast<unsigned long long>(cycles),
              static_cast<double>(cycles) / kCyclesPerSecond);
  if (disk.saves > 0) {
    Print("saved", Hex(disk.start) + "-" + Hex(disk.end - 1) + " as \"" + disk.name + "\" on drive " +
                       std::to_string(disk.device));
  }
  const Screen screen = ScreenOf(machine);
  Print("shows", screen.mode);
  Print("border", std::string(model::ColourName(model::C64Colour::FromByte(screen.border))));
  if (!arguments.image.empty()) WriteImage(screen, arguments.image);
  return has_ended ? kToolDone : kToolFailed;
}

}  // namespace
}  // namespace kelvo::c64

int main(int argc, char** argv) {
  using namespace kelvo;
  return ToolMain({"c64-show", c64::kHelp}, argc, argv, [=] { return c64::Show(c64::ArgumentsFrom(argc, argv)); });
}
