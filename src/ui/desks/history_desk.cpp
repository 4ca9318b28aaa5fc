#include "ui/desks/history_desk.h"

#include <QScopedValueRollback>
#include <system_error>
#include <utility>

#include "app/durable_file.h"
#include "app/whole_file.h"

namespace kelvo::ui {

HistoryDesk::HistoryDesk(const files::PictureSurroundings& with, const PaintingDesk& painting,
                         std::filesystem::path file)
    : with_(with), painting_(painting), history_(with.document), file_(std::move(file)) {}

void HistoryDesk::ActionBegins(std::string_view caption) {
  if (is_changed_) Record();
  caption_ = caption;
}

void HistoryDesk::Changed() {
  is_changed_ = true;
  Settle();
}

void HistoryDesk::Settle() {
  if (is_changed_ && !is_walking_ && !IsAtWork()) Record();
}

void HistoryDesk::Record() {
  is_changed_ = false;
  const std::string caption = Caption();
  if (std::exchange(is_replaced_, false)) {
    history_.Open(caption);
  } else if (!history_.Record(caption)) {
    return;
  }
  caption_.clear();
  KeepSteps();
  emit StepsChanged();
}

// A shape that waited for its last point while something else was done goes by the name of its undo step.
std::string HistoryDesk::Caption() const {
  return caption_.empty() ? painting_.Painting().UndoData().ActionName() : caption_;
}

void HistoryDesk::PictureSaved() {
  if (is_changed_) Record();
  history_.Saved();
  KeepSteps();
  emit StepsChanged();
}

void HistoryDesk::FilesMoved(const files::WhereNow& now) {
  history_.FilesMoved(now);
  KeepSteps();
  emit StepsChanged();
}

void HistoryDesk::StepBack() {
  Settle();
  GoTo(history_.Before(history_.Current()));
}

void HistoryDesk::StepForward() {
  Settle();
  GoTo(history_.After(history_.Current()));
}

void HistoryDesk::GoTo(history::StepId step) {
  Settle();
  if (IsAtWork() || step == history_.Current()) return;
  const QScopedValueRollback walking(is_walking_, true);
  if (!with_.files.Return(history_.DocumentAt(step))) return;
  history_.GoTo(step);
  is_changed_ = false;
  caption_.clear();
  emit StepsChanged();
}

void HistoryDesk::TakeUp(const std::filesystem::path& file) {
  if (history_.Count() > 1) return;
  app::Guarded(with_.log, "MDIFormMenu_TakeUpSteps", [&] {
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) return;
    history_.Restore(app::ReadWholeFile(file, app::kMostBytesToCopy));
    emit StepsChanged();
  });
}

void HistoryDesk::KeepSteps() {
  const app::Bytes news = history_.TakeNews();
  if (file_.empty()) return;
  const bool is_kept = app::Guarded(with_.log, "MDIFormMenu_KeepSteps", [&] {
    if (!std::exchange(is_file_begun_, true)) return app::WriteOwnFile(file_, news);
    const std::string_view text(reinterpret_cast<const char*>(news.data()), news.size());
    if (const std::error_code error = app::AppendText(file_, text)) throw std::system_error(error);
  });
  if (!is_kept) file_.clear();  // what follows would be of no use
}

void HistoryDesk::RemoveFile() {
  std::error_code ignored;
  if (is_file_begun_) std::filesystem::remove(file_, ignored);
}

}  // namespace kelvo::ui
