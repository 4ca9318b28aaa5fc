#include "ui/ports/program_slot.h"

#include <QLockFile>
#include <utility>

#include "app/path_text.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

std::unique_ptr<QLockFile> LockOf(const std::filesystem::path& folder, int number) {
  const std::string name = "running_" + std::to_string(number) + ".lock";
  auto lock = std::make_unique<QLockFile>(QtFromPath(folder / name));
  lock->setStaleLockTime(0);  // a lock is void only when its program is gone, however old it is
  return lock;
}

}  // namespace

ProgramSlot::ProgramSlot(std::filesystem::path folder, const std::function<bool(int)>& may_take)
    : folder_(std::move(folder)) {
  for (int number = 1; number <= kMostPrograms; ++number) {
    if (!may_take(number)) continue;
    auto lock = LockOf(folder_, number);
    if (lock->tryLock(0)) {
      lock_ = std::move(lock);
      number_ = number;
      return;
    }
    if (lock->error() != QLockFile::LockFailedError) return;
  }
}

ProgramSlot::~ProgramSlot() = default;

std::unique_ptr<QLockFile> ProgramSlot::TryLock(int number) const {
  auto lock = LockOf(folder_, number);
  return lock->tryLock(0) ? std::move(lock) : nullptr;
}

}  // namespace kelvo::ui
