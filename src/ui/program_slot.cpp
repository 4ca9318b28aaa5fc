#include "ui/program_slot.h"

#include <QLockFile>

#include "app/path_text.h"
#include "ui/qt_text.h"

namespace kelvo::ui {
ProgramSlot::ProgramSlot(const app::ProgramFolders& folders) : folders_(folders) {
  folders.Create();
  for (int number = 1; number <= kMostPrograms && !lock_; ++number) {
    lock_ = TryLock(number);
    if (lock_) number_ = number;
  }
}

ProgramSlot::~ProgramSlot() = default;

// A lock is void only when its program is gone, however old it is.
std::unique_ptr<QLockFile> ProgramSlot::TryLock(int number) const {
  const std::string name = "running_" + std::to_string(number) + ".lock";
  auto lock = std::make_unique<QLockFile>(ToQt(app::TextFromPath(folders_.System() / name)));
  lock->setStaleLockTime(0);
  return lock->tryLock(0) ? std::move(lock) : nullptr;
}

}  // namespace kelvo::ui
