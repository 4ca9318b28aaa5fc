// Keeps unsaved work safe from crashes, and offers it at the next start.
#pragma once

#include <QObject>
#include <optional>

#include "files/picture_files.h"
#include "files/recovery_copy.h"
#include "ui/ports/program_slot.h"

namespace kelvo::ui {

// The copy lies in BACKUP, and where that cannot be written in a second place.
class RecoveryDesk : public QObject {
  Q_OBJECT

 public:
  // `slot` is this program's in the program folder.
  RecoveryDesk(const files::PictureSurroundings& with, const ProgramSlot& slot);

  // Brings the copy up to date; cheap enough for every tick of a timer.
  void Tick();
  // The program has to end now.
  void KeepNow();
  // The user saved the work or gave it up.
  void Remove() { copy_.Remove(); }

  // Offers what programs left that ended without saving; true when the user took some of it up. What is not wanted now
  // stays in BACKUP as a rescue copy. A question that the end of the program closes is asked again at the next start.
  bool Offer();

 signals:
  // The work of a session is about to be taken up, of which these may be the steps.
  void StepsFound(const std::filesystem::path& steps);
  // Said once each: that the copy goes to the second place, that there is none.
  void Word(const QString& word);

 private:
  template <typename Work>
  bool Guard(Work&& work);
  template <typename Work>
  bool Keep(Work&& work);
  bool OpenOtherPlace();
  void Say(const QString& word);
  void OfferCopiesIn(const std::filesystem::path& folder, const ProgramSlot& slot, bool& is_taken_up);
  // Sets `is_taken_up` as soon as the work is in the document, whatever fails behind that.
  void OfferCopy(const files::RecoveryFiles& left, bool& is_taken_up);

  files::PictureSurroundings with_;
  const ProgramSlot& slot_;
  std::filesystem::path other_folder_;
  std::optional<ProgramSlot> other_slot_;            // once the second place is in use, and
  std::optional<files::RecoveryFiles> other_files_;  // what this program writes there
  files::RecoveryCopy copy_;
  QString said_;
  bool is_ending_ = false;
};

}  // namespace kelvo::ui
