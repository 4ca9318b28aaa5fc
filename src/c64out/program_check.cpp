#include "c64out/program_check.h"

#include <algorithm>

#include "model/pixel_colour.h"

namespace kelvo::c64out {
namespace {

constexpr std::uint64_t kSlice = 40'000, kMostCycles = 6'000'000;  // between looks, and in all

ProgramFinding Watch(c64::Machine& machine, const ScreenPixels& wanted) {
  machine.Start();
  while (machine.Cpu().cycles < kMostCycles) {
    const auto ending = machine.RunOn(machine.Cpu().cycles + kSlice);
    if (c64::ScreenOf(machine).pixels == wanted) return {ProgramState::kShowsPicture, {}};
    if (ending == c64::Machine::Ending::kReturns) return {ProgramState::kShowsOther, "it returns to BASIC"};
    if (ending) return {ProgramState::kShowsOther, "it stops with " + c64::ScreenOf(machine).mode};
  }
  return {ProgramState::kShowsOther, "it runs on with " + c64::ScreenOf(machine).mode};
}

}  // namespace

ScreenPixels PixelsOf(const model::PictureImage& picture) {
  ScreenPixels pixels;
  auto pixel = pixels.begin();
  for (int y = 1; y <= model::PictureImage::kHeight; ++y) {
    for (int x = 1; x <= model::PictureImage::kWidth; ++x) {
      pixel = std::fill_n(pixel, 2, model::GetPixelData(picture, x, y).colour.Byte());
    }
  }
  return pixels;
}

ProgramFinding TryInC64(std::span<const std::uint8_t> program, bool via_codenet,
                        const std::function<ProgramFinding(c64::Machine&)>& watch) {
  try {
    c64::Machine machine;
    machine.LetItChangeWhatIsShown();
    if (via_codenet) machine.LeaveUnclean();
    machine.Load(program);
    return watch(machine);
  } catch (const c64::MachineCrash& crash) {
    return {ProgramState::kCrashes, crash.what()};
  } catch (const c64::MachineFault& fault) {
    return {ProgramState::kCannotBeJudged, fault.what()};
  }
}

ProgramFinding TryProgram(std::span<const std::uint8_t> program, const model::PictureImage& picture, bool via_codenet) {
  return TryInC64(program, via_codenet, [&](c64::Machine& machine) { return Watch(machine, PixelsOf(picture)); });
}

}  // namespace kelvo::c64out
