// Keeps unsaved work safe from crashes, and offers it at the next start.
#pragma once

#include "app/clock.h"
#include "app/error_log.h"
#include "app/messages.h"
#include "files/picture_files.h"
#include "files/recovery_copy.h"
#include "ui/program_slot.h"

namespace kelvo::ui {

class RecoveryDesk {
 public:
  struct Surroundings {
    const app::ProgramFolders& folders;
    const app::Clock& clock;
    const app::ErrorLog& log;
    app::Messages& messages;
    const files::Document& document;
    files::PictureFiles& files;
  };
  explicit RecoveryDesk(const Surroundings& with);

  // Brings the copy up to date; cheap enough for every tick of a timer.
  void Tick();
  // The program has to end now.
  void KeepNow();
  // The user saved the work or gave it up.
  void Remove() { copy_.Remove(); }

  // Offers what programs left that ended without saving; true when the user took some of it up. What is not wanted now
  // stays in BACKUP as a rescue copy. A question that the end of the program closes is asked again at the next start.
  bool Offer();

 private:
  // Sets `is_taken_up` as soon as the work is in the document, whatever fails behind that.
  void OfferCopyOf(int number, bool& is_taken_up);
  template <typename Work>
  void Guard(Work&& work);

  Surroundings with_;
  ProgramSlot slot_;
  files::RecoveryCopy copy_;
  bool is_ending_ = false;
};

}  // namespace kelvo::ui
