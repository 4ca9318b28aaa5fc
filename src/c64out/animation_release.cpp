#include "c64out/animation_release.h"

#include <algorithm>

#include "c64anim/steps.h"
#include "c64out/animation_check.h"
#include "files/load_picture.h"

namespace kelvo::c64out {
namespace {

using Numbers = std::vector<int>;

Numbers OtherBackgrounds(const Release& release) {
  Numbers numbers;
  for (std::size_t i = 1; i < release.backgrounds.size(); ++i) {
    if (release.backgrounds[i] != release.backgrounds.front()) numbers.push_back(release.animation.frames[i].number);
  }
  return numbers;
}

// The first row of which that holds; null for none.
const ReleaseRow* FirstRow(const std::vector<ReleaseRow>& rows, bool ReleaseRow::*what, bool is) {
  const auto found = std::ranges::find(rows, is, what);
  return found == rows.end() ? nullptr : &*found;
}

std::string Counted(int number, const std::string& one) {
  return std::to_string(number) + " " + one + (number == 1 ? "" : "s");
}

}  // namespace

c64anim::Playing PlayingOf(const Release& release) {
  switch (release.wishes.playing) {
    case anim::Playing::kOnce:
      return c64anim::Playing::kOnce;
    case anim::Playing::kRound:
      return c64anim::Playing::kRound;
    case anim::Playing::kToAndFro:
      return c64anim::Playing::kToAndFro;
  }
  return {};
}

Release MakeRelease(const anim::AnimationFrames& animation, const ReleaseWishes& wishes, app::Progress& progress) {
  Release release{.wishes = wishes, .animation = animation, .fields = anim::FieldsOf(animation, wishes.rate)};
  const app::ProgressScope scope(progress, static_cast<int>(animation.frames.size()));
  c64anim::Animation core;
  for (std::size_t i = 0; i < animation.frames.size(); ++i) {
    progress.Advance(static_cast<int>(i));
    const auto picture = files::LoadPicture(animation.frames[i].path, files::kOwnType, {}, wishes.reading);
    core.Add(picture, release.fields[i]);
    release.backgrounds.push_back(picture.BackgroundColour);
    if (i < kMostTriedFields) release.first_pictures.push_back(picture);
  }
  release.plan = core.Plan(PlayingOf(release));
  return release;
}

std::vector<ReleaseRow> RowsOf(const Release& release) {
  const std::size_t frames = release.fields.size();
  std::vector<ReleaseRow> rows;
  for (const anim::AnimationFrame& frame : release.animation.frames) rows.push_back({frame.number});
  rows.front().bytes = release.plan.first_bytes;
  const bool goes_back = release.wishes.playing == anim::Playing::kToAndFro;
  for (const c64anim::ChangeCost& cost : release.plan.changes) {
    const auto to = static_cast<std::size_t>(cost.to_frame - 1), from = (to + frames - 1) % frames;
    rows[to].cells = cost.cells;
    rows[to].bytes += cost.bytes;
    rows[to].fits = cost.fits;
    rows[from].fields = std::max(rows[from].fields, cost.pace.fields);
    rows[to].torn_fields = std::max(rows[to].torn_fields, cost.pace.torn_fields);
    if (!goes_back) continue;
    rows[to].fields = std::max(rows[to].fields, cost.pace.fields);
    rows[from].torn_fields = std::max(rows[from].torn_fields, cost.pace.torn_fields);
  }
  for (std::size_t i = 0; i < frames; ++i) {
    rows[i].fields = std::max(rows[i].fields, rows[i].torn_fields);
    rows[i].is_slow = rows[i].fields > release.fields[i];
  }
  return rows;
}

int BytesOf(const Release& release) {
  const auto steps = c64anim::StepsOf(release.fields, PlayingOf(release)).size() + 1;
  int bytes = release.plan.first_bytes + static_cast<int>(steps) * c64anim::kStepBytes;
  for (const c64anim::ChangeCost& cost : release.plan.changes) bytes += cost.bytes;
  return bytes;
}

int FramesThatFit(const Release& release) {
  const std::vector<ReleaseRow> rows = RowsOf(release);
  return static_cast<int>(std::ranges::find(rows, false, &ReleaseRow::fits) - rows.begin());
}

int FastestRate(const Release& release) {
  int rate = anim::kFastestRate;
  const std::vector<ReleaseRow> rows = RowsOf(release);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rate = std::min(rate, release.animation.frames[i].turns * c64anim::kFieldsPerSecond / rows[i].fields);
  }
  return rate;
}

bool HasOtherBackgrounds(const Release& release) {
  return !OtherBackgrounds(release).empty();
}

std::string Refusal(const Release& release) {
  const Numbers others = OtherBackgrounds(release);
  if (!others.empty() && !release.wishes.changes_background) {
    return anim::FramesNamed(others) + (others.size() == 1 ? " has" : " have") + " another background color than frame " +
           std::to_string(release.animation.frames.front().number) + ".";
  }
  if (release.plan.Fits()) return {};
  const std::vector<ReleaseRow> rows = RowsOf(release);
  const ReleaseRow* row = FirstRow(rows, &ReleaseRow::fits, false);
  if (row == nullptr) return "The animation does not fit into the memory of a C64.";
  return "Frame " + std::to_string(row->frame) + " does not fit into the memory of a C64: " +
         Counted(row->cells, "cell") + " changed, " + Counted(row->bytes, "byte") + ".";
}

std::string Advice(const Release& release) {
  if (!release.plan.Fits()) return "Fewer frames would help, or fewer cells that change from frame to frame.";
  const std::vector<ReleaseRow> rows = RowsOf(release);
  if (FirstRow(rows, &ReleaseRow::is_slow, true) == nullptr) return {};
  const int rate = FastestRate(release);
  return (rate > 0 ? "At most " + std::to_string(rate) + " frames a second would help, or" : std::string("It would help")) +
         " that fewer cells change in the frames that are slow.";
}

std::vector<std::string> Notes(const Release& release) {
  std::vector<std::string> notes;
  const Numbers& missing = release.animation.missing;
  if (!missing.empty()) notes.push_back(anim::FramesNamed(missing) + (missing.size() == 1 ? " is" : " are") + " missing.");
  if (release.fields.size() == 1) notes.push_back("There is one frame only: nothing moves.");
  const std::vector<ReleaseRow> rows = RowsOf(release);
  Numbers slow, torn;
  for (const ReleaseRow& row : rows) {
    if (row.is_slow) slow.push_back(row.frame);
    if (row.torn_fields > 0) torn.push_back(row.frame);
  }
  if (!slow.empty()) notes.push_back(anim::FramesNamed(slow) + (slow.size() == 1 ? " comes" : " come") + " late.");
  if (!torn.empty()) notes.push_back(anim::FramesNamed(torn) + (torn.size() == 1 ? " comes" : " come") + " in from above.");
  return notes;
}

}  // namespace kelvo::c64out
