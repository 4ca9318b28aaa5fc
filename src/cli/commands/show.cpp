#include <span>

#include "app/number_text.h"
#include "app/whole_file.h"
#include "c64/kernal_disk.h"
#include "c64/machine.h"
#include "c64/screen.h"
#include "cli/commands/commands.h"
#include "cli/commands/output.h"
#include "cli/commands/palette_choice.h"
#include "cli/commands/picture_input.h"
#include "cli/standard_streams.h"
#include "images/picture_png.h"
#include "model/palette.h"

namespace kelvo::cli {
namespace {

constexpr std::uintmax_t kMostOfAPrg = 0x10002;
constexpr std::uint64_t kCyclesPerSecond = 985248;  // of a PAL C64
constexpr int kUsualSeconds = 20;

// How it ended, in words.
std::string Ran(c64::Machine& machine, int seconds) {
  machine.Start();
  const auto ending = machine.RunOn(static_cast<std::uint64_t>(seconds) * kCyclesPerSecond);
  if (!ending) return "runs on";
  if (*ending == c64::Machine::Ending::kReturns) return "is back in BASIC";
  return "loops at $" + app::ToHex(machine.Cpu().pc, 4);
}

std::string Hundredths(std::uint64_t cycles) {
  const std::uint64_t hundredths = cycles * 100 / kCyclesPerSecond;
  return std::to_string(hundredths / 100) + "." + std::to_string(hundredths / 10 % 10) +
         std::to_string(hundredths % 10);
}

}  // namespace

ExitCode Show(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const files::Palette palette = ChosenPalette(arguments, settings);
  const std::string& operand = arguments.operands.front();
  RequireOtherThanInputs(arguments, {arguments.Output()});
  const app::Bytes program = ReadInput(operand, kMostOfAPrg);
  c64::Machine machine;
  const c64::KernalDisk disk(machine);
  machine.LetItChangeWhatIsShown();
  std::string ending;
  try {
    machine.Load(program);
    ending = Ran(machine, arguments.Number(kSeconds).value_or(kUsualSeconds));
  } catch (const c64::MachineFault& fault) {
    throw PictureSaysNo(NameOfInput(operand) + ": " + fault.what());
  }
  const c64::Screen screen = c64::ScreenOf(machine);
  const bool is_written = arguments.operands.size() > 1;
  if (is_written) {
    const auto border = model::C64Colour::FromByte(screen.border);
    WriteOutput(arguments.Output(), images::PngOf(images::ImageOfScreen(screen.pixels, border, palette)));
  }
  if (is_written && arguments.Output() == "-") return kDone;
  Print("ended   " + ending + " after " + Hundredths(machine.Cpu().cycles) + " s\nshows   " + screen.mode +
        "\nborder  " + std::string(model::ColourName(model::C64Colour::FromByte(screen.border))) + "\n");
  return kDone;
}

}  // namespace kelvo::cli
