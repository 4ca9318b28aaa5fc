#include "c64out/animation_release.h"

#include <algorithm>
#include <set>

#include "anim/frame_times.h"
#include "app/number_text.h"
#include "c64anim/steps.h"
#include "c64out/animation_check.h"
#include "files/load_picture.h"

namespace kelvo::c64out {
namespace {

using Numbers = std::vector<int>;

static_assert(anim::kFieldsPerSecond == c64anim::kFieldsPerSecond);

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

Numbers OtherBackgrounds(const Release& release) {
  Numbers numbers;
  for (std::size_t i = 1; i < release.backgrounds.size(); ++i) {
    if (release.backgrounds[i] != release.backgrounds.front()) numbers.push_back(release.animation.frames[i].number);
  }
  return numbers;
}

// Of the frames of which `is` holds, each once.
Numbers NumbersOf(const std::vector<ReleaseRow>& rows, bool (*is)(const ReleaseRow& row)) {
  std::set<int> numbers;
  for (const ReleaseRow& row : rows) {
    if (is(row)) numbers.insert(row.frame);
  }
  return {numbers.begin(), numbers.end()};
}

}  // namespace

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
  release.plan = core.Plan(PlayingOf(release), progress);
  return release;
}

std::vector<ReleaseRow> RowsOf(const Release& release) {
  const bool goes_back = release.wishes.playing == anim::Playing::kToAndFro;
  std::vector<ReleaseRow> rows;
  for (const anim::AnimationFrame& frame : release.animation.frames) rows.push_back({frame.number});
  const auto& changes = release.plan.changes;
  if (changes.size() == rows.size()) rows.push_back(rows.front());
  rows.front().bytes = release.plan.first_bytes;
  for (std::size_t i = 0; i < changes.size(); ++i) {
    ReleaseRow &from = rows[i], &to = rows[i + 1];
    to.cells = changes[i].cells;
    to.bytes = changes[i].bytes;
    to.fits = changes[i].fits;
    to.torn_fields = changes[i].pace.torn_fields;
    from.fields = std::max(from.fields, changes[i].pace.fields);
    if (!goes_back) continue;
    to.fields = changes[i].pace.fields;
    from.torn_fields = std::max(from.torn_fields, changes[i].pace.torn_fields);
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].fields = std::max(rows[i].fields, rows[i].torn_fields);
    rows[i].is_slow = rows[i].fields > release.fields[i % release.fields.size()];
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
  const auto frames = static_cast<int>(release.fields.size());
  if (release.plan.Fits()) return frames;
  const std::vector<ReleaseRow> rows = RowsOf(release);
  return std::min(frames - 1, static_cast<int>(std::ranges::find(rows, false, &ReleaseRow::fits) - rows.begin()));
}

int FastestRate(const Release& release) {
  int rate = anim::kFastestRate;
  const std::vector<ReleaseRow> rows = RowsOf(release);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int turns = release.animation.frames[i % release.fields.size()].turns;
    rate = std::min(rate, turns * c64anim::kFieldsPerSecond / rows[i].fields);
  }
  return rate;
}

bool HasOtherBackgrounds(const Release& release) {
  return !OtherBackgrounds(release).empty();
}

std::string Refusal(const Release& release) {
  const Numbers others = OtherBackgrounds(release);
  if (!others.empty() && !release.wishes.changes_background) {
    return anim::FramesNamed(others) + (others.size() == 1 ? " has" : " have") +
           " another background color than frame " + std::to_string(release.animation.frames.front().number) + ".";
  }
  if (release.plan.Fits()) return {};
  const std::vector<ReleaseRow> rows = RowsOf(release);
  const auto row = std::ranges::find(rows, false, &ReleaseRow::fits);
  if (row == rows.end()) return "The animation does not fit into the memory of a C64.";
  const bool leads_back = row - rows.begin() == std::ssize(release.fields);
  return (leads_back ? "The way back to frame " : "Frame ") + std::to_string(row->frame) +
         " does not fit into the memory of a C64: " + app::Counted(row->cells, "cell") + " changed, " +
         app::Counted(row->bytes, "byte") + ".";
}

std::string Advice(const Release& release) {
  if (!release.plan.Fits()) {
    return "Fewer frames would help, fewer cells that change, or a lower rate, at which more can be packed.";
  }
  const std::vector<ReleaseRow> rows = RowsOf(release);
  if (std::ranges::find(rows, true, &ReleaseRow::is_slow) == rows.end()) return {};
  const int rate = FastestRate(release);
  return (rate > 0 ? "At most " + std::to_string(rate) + " frames a second would help, or"
                   : std::string("It would help")) +
         " that fewer cells change in the frames that are slow.";
}

std::vector<std::string> Notes(const Release& release) {
  std::vector<std::string> notes;
  const auto note = [&notes](const Numbers& frames, const std::string& one, const std::string& many) {
    if (!frames.empty()) notes.push_back(anim::FramesNamed(frames) + (frames.size() == 1 ? one : many));
  };
  note(release.animation.missing, " is missing.", " are missing.");
  if (release.fields.size() == 1) notes.push_back("There is one frame only: nothing moves.");
  const std::vector<ReleaseRow> rows = RowsOf(release);
  note(NumbersOf(rows, [](const ReleaseRow& row) { return row.is_slow; }), " stays longer than it should.",
       " stay longer than they should.");
  note(NumbersOf(rows, [](const ReleaseRow& row) { return row.torn_fields > 0; }), " comes in from above.",
       " come in from above.");
  return notes;
}

}  // namespace kelvo::c64out
