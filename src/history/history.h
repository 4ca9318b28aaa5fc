// Every step of a session: what the picture was after each action, and which file it belonged to.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "files/document.h"
#include "history/step_tree.h"

namespace kelvo::history {

// Watches a document without changing it. Where an action goes on from a step in the middle, the steps that followed
// stay as a branch of their own: nothing is ever thrown away.
//
// A step belongs to a picture that was opened or begun, and with it to the file that this one has now: saved under
// another name, it takes all of its steps along.
class History {
 public:
  // `document` outlives the history, and is its step 0.
  explicit History(const files::Document& document);
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  // The document's picture as a step behind the current one; false and nothing where it is the same.
  bool Record(std::string_view caption);
  // Another picture took the document's place: a step in any case.
  void Open(std::string_view caption);
  // Files have other paths now. Steps of one that is gone have none any more.
  void FilesMoved(const files::WhereNow& now);
  // The document was saved: its file holds the current step now.
  void Saved();

  int Count() const { return tree_.Count(); }
  StepId Current() const { return current_.At(); }
  StepId Before(StepId step) const { return tree_.Before(step); }
  StepId After(StepId step) const { return tree_.After(step); }
  const std::string& CaptionOf(StepId step) const { return FactsOf(step).caption; }
  const files::CurrentFile& FileOf(StepId step) const { return OpenedAt(step).file; }
  // Whether the step is what its file holds.
  bool IsSaved(StepId step) const { return !FileOf(step).CurrentFilePath.empty() && KeptOf(step).step == step; }
  // Quick for one that is near the last that was asked for.
  model::PictureImage PictureAt(StepId step);

  // The document as it was at `step`, with what is known now of its file.
  files::Document DocumentAt(StepId step) const;
  // The document is as at `step`: the next action goes on from there.
  void GoTo(StepId step);

  // What was recorded since the last call, for a file that outlives a crash. Such bytes one after the other bring every
  // step back, as far as they are whole; what is saved of them is not known then. The last step becomes the current
  // one.
  app::Bytes TakeNews();
  void Restore(std::span<const std::uint8_t> recorded);

  std::size_t BytesUsed() const;

 private:
  static constexpr StepId kNoStep = -1;

  struct Facts {
    std::string caption;
    std::size_t opened;
  };
  // What a file holds: the step that shows it, where one does, and its bytes. The picture is what differs from a blank
  // one.
  struct Kept {
    StepId step = kNoStep;
    app::Bytes picture, on_disk;
  };
  struct Opened {
    files::CurrentFile file;
    Kept without_file;  // while it has none
  };

  const Facts& FactsOf(StepId step) const { return facts_.at(static_cast<std::size_t>(step)); }
  const Opened& OpenedAt(StepId step) const { return opened_.at(FactsOf(step).opened); }
  const Kept& KeptOf(StepId step) const;
  void Begin();
  void Clear();
  void LookAfresh();
  void AddStep(std::string_view caption, std::size_t opened);
  void KeepCurrent();
  void Amend();
  void Tell(std::uint32_t kind, StepId step, const app::Bytes& delta);
  void TakeRecord(std::span<const std::uint8_t> record);

  const files::Document& document_;
  StepTree tree_;
  Walker current_;
  Walker looking_;  // for those who ask for pictures: mostly the next one to the last
  std::vector<Facts> facts_;
  std::vector<Opened> opened_;
  std::map<std::filesystem::path, Kept> kept_;
  app::Bytes news_;
};

}  // namespace kelvo::history
