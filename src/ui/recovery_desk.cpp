#include "ui/recovery_desk.h"

#include <QLockFile>

#include "files/rescue_copy.h"

namespace kelvo::ui {

RecoveryDesk::RecoveryDesk(const Surroundings& with)
    : with_(with), slot_(with.folders), copy_(with.document, files::RecoveryFiles(with.folders, slot_.Number())) {}

template <typename Work>
void RecoveryDesk::Guard(Work&& work) {
  app::Guarded(with_.log, "MDIFormMenu_KeepRecoveryCopy", std::forward<Work>(work));
}

void RecoveryDesk::Tick() {
  Guard([this] { copy_.Keep(std::chrono::steady_clock::now()); });
}

void RecoveryDesk::KeepNow() {
  is_ending_ = true;
  Guard([this] { copy_.KeepNow(); });
}

bool RecoveryDesk::Offer() {
  bool is_taken_up = false;
  for (int number = 1; number <= kMostPrograms && !is_ending_; ++number) {
    Guard([&] { OfferCopyOf(number, is_taken_up); });
  }
  return is_taken_up;
}

void RecoveryDesk::OfferCopyOf(int number, bool& is_taken_up) {
  const files::RecoveryFiles left(with_.folders, number);
  const auto document = left.Read();
  const auto lock = number == slot_.Number() ? nullptr : slot_.TryLock(number);
  if (!document || (lock == nullptr && number != slot_.Number())) return;
  const std::string name = document->file.HasFile() ? document->file.CurrentFileName : "unnamed";
  const bool is_wanted =
      with_.messages.Ask("Kelvo ended without saving the picture " + name +
                         " the last time.\nOpen it as it was? Otherwise it is kept in the BACKUP folder.");
  if (is_ending_ || (is_wanted && !with_.files.Recover(*document))) return;
  if (is_wanted) {
    is_taken_up = true;
    copy_.KeepNow();
  } else {
    files::KeepRescueCopy(*document, with_.folders, with_.clock);
  }
  if (!is_wanted || number != slot_.Number()) left.Remove();
}

}  // namespace kelvo::ui
