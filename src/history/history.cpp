#include "history/history.h"

#include <algorithm>
#include <utility>

#include "app/path_text.h"
#include "history/byte_stream.h"

namespace kelvo::history {
namespace {

constexpr std::uint32_t kStep = 0, kAmendment = 1;

std::uint32_t ChecksumOf(std::span<const std::uint8_t> bytes) {
  std::uint32_t sum = 0x811C9DC5U;
  for (const std::uint8_t byte : bytes) sum = (sum ^ byte) * 0x01000193U;
  return sum;
}

std::size_t PathBytes(const files::CurrentFile& file) {
  return file.CurrentFilePath.native().capacity() * sizeof(std::filesystem::path::value_type);
}

}  // namespace

History::History(const files::Document& document)
    : document_(document), tree_(State{}), current_(tree_), looking_(tree_) {
  Begin();
}

void History::Begin() {
  Clear();
  tree_ = StepTree(StateOf(document_.picture));
  LookAfresh();
  facts_.push_back({"Start", 0});
  opened_.push_back({document_.file, {}});
  KeepCurrent();
  Tell(kStep, 0, Difference({}, tree_.First()));
}

void History::Clear() {
  tree_ = StepTree(State{});
  facts_.clear();
  opened_.clear();
  kept_.clear();
  news_.clear();
}

void History::LookAfresh() {
  current_.StartAfresh();
  looking_.StartAfresh();
}

bool History::Record(std::string_view caption) {
  const State now = StateOf(document_.picture);
  if (now == current_.Shown()) return false;
  AddStep(caption, FactsOf(Current()).opened);
  return true;
}

void History::Open(std::string_view caption) {
  opened_.push_back({document_.file, {}});
  AddStep(caption, opened_.size() - 1);
  KeepCurrent();
}

void History::AddStep(std::string_view caption, std::size_t opened) {
  app::Bytes delta = Difference(current_.Shown(), StateOf(document_.picture));
  facts_.push_back({std::string(caption), opened});
  current_.GoTo(tree_.Add(Current(), std::move(delta)));
  const auto recorded = tree_.DeltaOf(Current());
  Tell(kStep, Current(), {recorded.begin(), recorded.end()});
}

void History::Saved() {
  opened_[FactsOf(Current()).opened].file = document_.file;
  Amend();
  KeepCurrent();
}

void History::FilesMoved(const files::WhereNow& now) {
  std::map<std::filesystem::path, Kept> kept;
  for (auto& [path, state] : kept_) {
    if (auto there = now(path); !there.empty()) kept.emplace(std::move(there), std::move(state));
  }
  kept_ = std::move(kept);
  std::vector<bool> is_moved;
  for (Opened& opened : opened_) {
    const std::filesystem::path before = opened.file.CurrentFilePath, after = now(before);
    is_moved.push_back(before != after);
    if (is_moved.back()) opened.file = {after, files::NameOfPath(after.empty() ? before : after)};
  }
  for (StepId step = 0; step < Count(); ++step) {
    const std::size_t opened = FactsOf(step).opened;
    if (is_moved[opened]) Tell(kAmendment, step, {});
    is_moved[opened] = false;
  }
}

// Saving signs the picture: bytes that nobody sees change without an action.
void History::Amend() {
  const app::Bytes delta = Difference(current_.Shown(), StateOf(document_.picture));
  tree_.Amend(Current(), delta);
  looking_.Amended(Current(), delta);
  current_.Amended(Current(), delta);
  Tell(kAmendment, Current(), delta);
}

void History::KeepCurrent() {
  Opened& opened = opened_[FactsOf(Current()).opened];
  Kept& kept = opened.file.HasFile() ? kept_[opened.file.CurrentFilePath] : opened.without_file;
  kept.step = document_.HasUnsavedWork() ? kNoStep : Current();
  kept.picture = Difference({}, StateOf(document_.kept));
  kept.on_disk = document_.on_disk;
}

const History::Kept& History::KeptOf(StepId step) const {
  const Opened& opened = OpenedAt(step);
  const auto found = kept_.find(opened.file.CurrentFilePath);
  return found == kept_.end() ? opened.without_file : found->second;
}

model::PictureImage History::PictureAt(StepId step) {
  looking_.GoTo(step);
  return PictureOf(looking_.Shown());
}

files::Document History::DocumentAt(StepId step) const {
  const Kept& known = KeptOf(step);
  Walker there = current_;
  there.GoTo(step);
  State kept{};
  Apply(known.picture, kept);
  return {.picture = PictureOf(there.Shown()), .kept = PictureOf(kept), .file = FileOf(step), .on_disk = known.on_disk};
}

void History::GoTo(StepId step) {
  current_.GoTo(step);
  tree_.LeadTo(step);
}

void History::Tell(std::uint32_t kind, StepId step, const app::Bytes& delta) {
  app::Bytes record;
  PutNumber(record, kind);
  PutNumber(record, static_cast<std::uint32_t>(kind == kStep ? Before(step) : step));
  PutNumber(record, static_cast<std::uint32_t>(FactsOf(step).opened));
  PutText(record, app::TextFromPath(FileOf(step).CurrentFilePath));
  PutText(record, CaptionOf(step));
  PutBytes(record, delta);
  PutBytes(news_, record);
  PutNumber(news_, ChecksumOf(record));
}

app::Bytes History::TakeNews() {
  return std::exchange(news_, {});
}

void History::Restore(std::span<const std::uint8_t> recorded) {
  Clear();
  ByteReader reader(recorded);
  std::size_t whole = 0;
  try {
    while (!reader.IsAtEnd()) {
      const auto record = reader.Bytes();
      if (reader.Number() != ChecksumOf(record)) break;
      TakeRecord(record);
      whole = recorded.size() - reader.Left();
    }
  } catch (const DamagedSteps&) {
    // what was being written when the program ended is there in part
  }
  if (facts_.empty()) return Begin();
  LookAfresh();
  GoTo(Count() - 1);
  news_.assign(recorded.begin(), recorded.begin() + static_cast<std::ptrdiff_t>(whole));
}

void History::TakeRecord(std::span<const std::uint8_t> record) {
  ByteReader reader(record);
  const std::uint32_t kind = reader.Number(), step = reader.Number(), opened = reader.Number();
  const std::string path = reader.Text(), caption = reader.Text();
  const auto delta = reader.Bytes();
  State checked{};
  Apply(delta, checked);
  if (step >= std::max<std::size_t>(facts_.size(), 1) || opened > opened_.size()) throw DamagedSteps();

  if (opened == opened_.size()) opened_.emplace_back();
  files::CurrentFile& file = opened_[opened].file;
  file.CurrentFilePath = app::PathFromText(path);
  if (file.HasFile()) file.CurrentFileName = files::NameOfPath(file.CurrentFilePath);
  if (kind == kAmendment || facts_.empty()) {
    tree_.Amend(static_cast<StepId>(step), delta);
  } else {
    tree_.Add(static_cast<StepId>(step), {delta.begin(), delta.end()});
  }
  if (kind == kStep) facts_.push_back({caption, opened});
}

std::size_t History::BytesUsed() const {
  std::size_t bytes = sizeof *this + tree_.BytesUsed() + facts_.capacity() * sizeof(Facts) +
                      opened_.capacity() * sizeof(Opened) + news_.capacity();
  for (const Facts& facts : facts_) bytes += facts.caption.capacity();
  for (const Opened& opened : opened_) bytes += opened.file.CurrentFileName.capacity() + PathBytes(opened.file);
  for (const auto& [path, kept] : kept_) {
    bytes += sizeof kept + path.native().capacity() + kept.picture.capacity() + kept.on_disk.capacity();
  }
  return bytes;
}

}  // namespace kelvo::history
