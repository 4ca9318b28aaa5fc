#include "c64out/program_check.h"

#include "c64/machine.h"
#include "c64/screen.h"
#include "model/pixel_colour.h"

namespace kelvo::c64out {
namespace {

constexpr std::uint64_t kSlice = 40'000, kMostCycles = 6'000'000;  // between looks, and in all

bool Shows(const c64::Machine& machine, const model::PictureImage& picture) {
  const c64::Screen screen = c64::ScreenOf(machine);
  for (int y = 0; y < c64::Screen::kHeight; ++y) {
    for (int x = 0; x < c64::Screen::kWidth; x += 2) {
      const int wanted = model::GetPixelData(picture, x / 2 + 1, y + 1).colour.Number();
      if (screen.At(x, y) != wanted || screen.At(x + 1, y) != wanted) return false;
    }
  }
  return true;
}

ProgramFinding Watch(c64::Machine& machine, const model::PictureImage& picture) {
  machine.Start();
  while (machine.Cpu().cycles < kMostCycles) {
    const auto ending = machine.RunOn(machine.Cpu().cycles + kSlice);
    if (Shows(machine, picture)) return {ProgramState::kShowsPicture, {}};
    if (ending == c64::Machine::Ending::kReturns) return {ProgramState::kShowsOther, "it returns to BASIC"};
    if (ending) return {ProgramState::kShowsOther, "it stops with " + c64::ScreenOf(machine).mode};
  }
  return {ProgramState::kShowsOther, "it runs on with " + c64::ScreenOf(machine).mode};
}

}  // namespace

ProgramFinding TryProgram(std::span<const std::uint8_t> program, const model::PictureImage& picture, bool via_codenet) {
  try {
    c64::Machine machine;
    machine.LetItChangeWhatIsShown();
    if (via_codenet) machine.LeaveUnclean();
    machine.Load(program);
    return Watch(machine, picture);
  } catch (const c64::MachineCrash& crash) {
    return {ProgramState::kCrashes, crash.what()};
  } catch (const c64::MachineFault& fault) {
    return {ProgramState::kCannotBeJudged, fault.what()};
  }
}

}  // namespace kelvo::c64out
