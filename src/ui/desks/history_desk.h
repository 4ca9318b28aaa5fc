// Makes a step of every action that changes the picture, and walks through the steps.
#pragma once

#include <QObject>
#include <filesystem>
#include <string>

#include "files/picture_files.h"
#include "history/history.h"
#include "ui/desks/painting_desk.h"
#include "ui/desks/picture_windows.h"

namespace kelvo::ui {

// The one place where all changes of the picture come by: what changed becomes a step when its action is over, so when
// no stroke is under way, or when the next one begins.
class HistoryDesk : public QObject, public ChangeWatcher {
  Q_OBJECT

 public:
  // The steps are kept in `file` too, so that they outlive a crash; an empty path keeps them in memory alone.
  HistoryDesk(const files::PictureSurroundings& with, const PaintingDesk& painting, std::filesystem::path file);

  void ActionBegins(std::string_view caption) override;
  void Changing() override { is_changed_ = true; }
  void Changed() override;

  // What changed is a step now, unless its action is not over; cheap enough for every tick of a timer.
  void Settle();
  // Another picture takes the place of the one in memory; it is a step when it is shown.
  void PictureReplaced() { is_replaced_ = !is_walking_; }
  void PictureSaved();
  void FilesMoved(const files::WhereNow& now);

  history::History& Steps() { return history_; }
  bool CanStepBack() const { return history_.Current() != 0 || is_changed_; }
  bool CanStepForward() const { return history_.After(history_.Current()) != history_.Current(); }
  void StepBack();
  void StepForward();
  void GoTo(history::StepId step);

  // Takes up the steps of a session that ended in a crash, unless this one has steps of its own already.
  void TakeUp(const std::filesystem::path& file);
  // The session ends well.
  void RemoveFile();

 signals:
  void StepsChanged();  // another one, or another is the current one

 private:
  bool IsAtWork() const { return painting_.Painting().IsBusy() || painting_.Painting().StrokeButton(); }
  void Record();
  std::string Caption() const;
  void KeepSteps();

  files::PictureSurroundings with_;
  const PaintingDesk& painting_;
  history::History history_;
  std::filesystem::path file_;
  bool is_file_begun_ = false;
  std::string caption_;  // of the action that began last, until it is a step
  bool is_changed_ = false, is_replaced_ = false, is_walking_ = false;
};

}  // namespace kelvo::ui
