#include "ui/desks/recovery_desk.h"

#include <QLockFile>
#include <utility>

#include "app/other_folder.h"
#include "app/path_text.h"
#include "files/recovery_copy.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

RecoveryDesk::RecoveryDesk(const files::PictureSurroundings& with, const ProgramSlot& slot)
    : with_(with), slot_(slot), other_folder_(app::OtherFolderFor(with.folders.Root())), copy_(with.document) {
  if (const auto number = slot.Number()) copy_.AddPlace(files::RecoveryFiles(with.folders.Backup(), *number));
}

template <typename Work>
bool RecoveryDesk::Guard(Work&& work) {
  return app::Guarded(with_.log, "MDIFormMenu_KeepRecoveryCopy", std::forward<Work>(work));
}

// When it fails for the first time, the second place is opened.
template <typename Work>
bool RecoveryDesk::Keep(Work&& work) {
  bool is_kept = Guard(std::forward<Work>(work));
  if (!is_kept && !other_slot_ && OpenOtherPlace()) is_kept = Guard([this] { copy_.KeepNow(); });
  if (!is_kept) Say("Work cannot be kept safe now: save it");
  if (is_kept && other_files_ && copy_.IsIn(*other_files_)) Say("BACKUP failed: work is kept in another place");
  return is_kept;
}

// What lies there under a number that nobody holds has not been offered yet, so this program takes another.
bool RecoveryDesk::OpenOtherPlace() {
  if (!app::MakeOtherFolder(other_folder_)) return false;
  other_slot_.emplace(other_folder_, [this](int number) {
    std::error_code ignored;
    return !std::filesystem::exists(files::RecoveryFiles(other_folder_, number).picture, ignored);
  });
  if (!other_slot_->Number()) return false;
  other_files_.emplace(other_folder_, *other_slot_->Number());
  copy_.AddPlace(*other_files_);
  return true;
}

void RecoveryDesk::Say(const QString& word) {
  if (std::exchange(said_, word) == word) return;
  with_.log.Write("MDIFormMenu_KeepRecoveryCopy: " + FromQt(word) + " (" + app::TextFromPath(other_folder_) + ")");
  emit Word(word);
}

void RecoveryDesk::Tick() {
  Keep([this] { copy_.Keep(std::chrono::steady_clock::now()); });
}

void RecoveryDesk::KeepNow() {
  is_ending_ = true;
  Keep([this] { copy_.KeepNow(); });
}

bool RecoveryDesk::Offer() {
  bool is_taken_up = false;
  OfferCopiesIn(with_.folders.Backup(), slot_, is_taken_up);
  std::error_code ignored;
  if (std::filesystem::exists(other_folder_, ignored) && (other_slot_ || OpenOtherPlace())) {
    OfferCopiesIn(other_folder_, *other_slot_, is_taken_up);
  }
  return is_taken_up;
}

void RecoveryDesk::OfferCopiesIn(const std::filesystem::path& folder, const ProgramSlot& slot, bool& is_taken_up) {
  for (int number = 1; number <= kMostPrograms && !is_ending_; ++number) {
    const files::RecoveryFiles left(folder, number);
    std::error_code ignored;
    if (!std::filesystem::exists(left.picture, ignored)) continue;
    const auto lock = number == slot.Number() ? nullptr : slot.TryLock(number);
    if (lock != nullptr || number == slot.Number()) Guard([&] { OfferCopy(left, is_taken_up); });
  }
}

void RecoveryDesk::OfferCopy(const files::RecoveryFiles& left, bool& is_taken_up) {
  const auto document = left.Read();
  if (!document) return;
  const std::string name = document->file.HasFile() ? document->file.CurrentFileName : "unnamed";
  const bool is_wanted =
      with_.messages.Ask("Kelvo ended without saving the picture " + name +
                         " the last time.\nOpen it as it was? Otherwise it is kept in the BACKUP folder.");
  if (is_ending_) return;
  if (is_wanted) emit StepsFound(left.steps);
  if (is_wanted && !with_.files.Recover(*document)) return;
  if (is_wanted) {
    is_taken_up = true;
    if (!Keep([this] { copy_.KeepNow(); })) return;
  } else {
    files::KeepRescueCopy(*document, with_.folders, with_.clock);
  }
  if (is_wanted && copy_.IsIn(left)) return;
  left.Remove();
  left.RemoveSteps();
}

}  // namespace kelvo::ui
