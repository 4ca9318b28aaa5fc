#include <algorithm>

#include "anim/animation_frames.h"
#include "app/path_text.h"
#include "cli/commands/build.h"
#include "cli/commands/disk_image.h"
#include "cli/commands/output.h"
#include "cli/commands/palette_choice.h"
#include "cli/standard_streams.h"
#include "files/load_picture.h"
#include "images/animation_export.h"

namespace kelvo::cli {
namespace {

using anim::AnimationFrames;

class ShownProgress final : public app::Progress {
 public:
  void Begin(int last) override { last_ = last; }
  void Advance(int value) override {
    ShowProgress(static_cast<std::size_t>(value) + 1, static_cast<std::size_t>(last_));
  }
  void End() override {}

 private:
  int last_ = 0;
};

AnimationFrames FramesIn(const Arguments& arguments, const app::SettingsStore& settings) {
  std::string folder = arguments.operands.front();
  std::error_code ignored;
  if (!std::filesystem::is_directory(app::PathFromText(folder), ignored)) {
    throw UsageError(folder + ": there is no such folder", arguments.command);
  }
  folder = app::TextFromPath(app::PathFromText(folder) / "");
  return anim::FindFrames({folder, arguments.Text(kPrefix, settings.Read(anim::kAnimPrefix))});
}

anim::Playing ChosenPlaying(const Arguments& arguments, const app::SettingsStore& settings) {
  if (!arguments.Has(kPlaying)) return anim::ReadPlaying(settings);
  const auto words = WordsOf(kPlaying.choices);
  return static_cast<anim::Playing>(std::ranges::find(words, arguments.Text(kPlaying)) - words.begin());
}

c64out::ReleaseWishes ChosenWishes(const Arguments& arguments, const app::SettingsStore& settings) {
  return {.rate = arguments.Number(kRate).value_or(anim::ReadPlayRate(settings)),
          .playing = ChosenPlaying(arguments, settings),
          .changes_background = arguments.Has(kChangeBackground),
          .reading = arguments.Has(kExact) ? files::Reading::kExact : files::ReadingBy(settings)};
}

void PrintReport(const c64out::Release& release) {
  std::string text = "frame  cells  bytes  fields\n";
  for (const c64out::ReleaseRow& row : c64out::RowsOf(release)) {
    const auto number = [](int value, std::size_t width) {
      const std::string digits = std::to_string(value);
      return std::string(width - std::min(width, digits.size()), ' ') + digits;
    };
    text += number(row.frame, 5) + number(row.cells, 7) + number(row.bytes, 7) + number(row.fields, 8);
    text += std::string(row.fits ? "" : "  does not fit") + (row.is_slow ? "  too slow" : "") +
            (row.torn_fields > 0 ? "  torn" : "") + "\n";
  }
  Print(text + "bytes  " + std::to_string(c64out::BytesOf(release)) + " of " +
        std::to_string(c64anim::Animation::kRoom) + "\nfit    " + std::to_string(c64out::FramesThatFit(release)) +
        " of " + std::to_string(release.fields.size()) + " frames\nrate   " +
        std::to_string(c64out::FastestRate(release)) + " at most\n");
}

app::Bytes GifFile(const AnimationFrames& frames, const c64out::ReleaseWishes& wishes, const Arguments& arguments,
                   const app::SettingsStore& settings) {
  const images::AnimationLook look{
      .palette = ChosenPalette(arguments, settings),
      .size = arguments.Has(kBorder) ? images::ImageSize::kBorder : images::ImageSize::kScreen,
      .scale = arguments.Number(kScale).value_or(1),
      .reading = wishes.reading};
  ShownProgress progress;
  return images::GifOf(frames, wishes.rate, wishes.playing, look, progress);
}

app::Bytes DiskFile(const app::Bytes& program, const AnimationFrames& frames, const Arguments& arguments,
                    const Ports& ports, const app::SettingsStore& settings) {
  const std::string name = NameFor(arguments.operands.front(), frames.name, arguments);
  return DiskWith({program}, {name}, FindDiskTool(arguments, settings), ports);
}

enum class OutputKind { kNone, kProgram, kDisk, kGif };

OutputKind KindOfOutput(const Arguments& arguments) {
  if (arguments.operands.size() == 1 && arguments.Has(kReport)) return OutputKind::kNone;
  const std::string ending = app::LowerExtension(arguments.Output());
  if (ending == ".prg") return OutputKind::kProgram;
  if (ending == ".d64") return OutputKind::kDisk;
  if (ending == ".gif") return OutputKind::kGif;
  throw UsageError(arguments.Output() + ": an animation becomes a .prg, a .d64 or a .gif", arguments.command);
}

// The report, and what is written but for a GIF.
app::Bytes Released(const AnimationFrames& frames, const c64out::ReleaseWishes& wishes, OutputKind kind,
                    const Arguments& arguments, const Ports& ports) {
  ShownProgress progress;
  const c64out::Release release = c64out::MakeRelease(frames, wishes, progress);
  if (arguments.Has(kReport)) PrintReport(release);
  for (const std::string& note : c64out::Notes(release)) Complain("Note: " + note);
  if (kind != OutputKind::kProgram && kind != OutputKind::kDisk) return {};
  const std::string refusal = c64out::Refusal(release);
  if (!refusal.empty()) throw PictureSaysNo(refusal + " " + c64out::Advice(release));
  const BuiltProgram program = BuildProgram(release, arguments, ports);
  Complain(program.notes);
  return program.bytes;
}

}  // namespace

ExitCode MakeAnimation(const Arguments& arguments, const Ports& ports) {
  const ChosenSettings settings(arguments, ports);
  const OutputKind kind = KindOfOutput(arguments);
  const AnimationFrames frames = FramesIn(arguments, settings);
  const c64out::ReleaseWishes wishes = ChosenWishes(arguments, settings);
  app::Bytes made;
  if (kind != OutputKind::kGif || arguments.Has(kReport)) made = Released(frames, wishes, kind, arguments, ports);
  if (kind == OutputKind::kDisk) made = DiskFile(made, frames, arguments, ports, settings);
  if (kind == OutputKind::kGif) made = GifFile(frames, wishes, arguments, settings);
  if (kind != OutputKind::kNone) WriteOutput(arguments.Output(), made);
  return kDone;
}

}  // namespace kelvo::cli
