// Which of the programs that share a program folder this one is.
#pragma once

#include <memory>

#include "app/program_folders.h"

class QLockFile;

namespace kelvo::ui {

inline constexpr int kMostPrograms = 16;

// The first number, from 1 to kMostPrograms, that no running program holds; it is free again when this one ends,
// however it ends.
class ProgramSlot {
 public:
  explicit ProgramSlot(const app::ProgramFolders& folders);
  ~ProgramSlot();

  int Number() const { return number_; }

  // Holds `number` until the lock is destroyed; null when another program holds it.
  std::unique_ptr<QLockFile> TryLock(int number) const;

 private:
  const app::ProgramFolders& folders_;
  std::unique_ptr<QLockFile> lock_;
  int number_ = 1;
};

}  // namespace kelvo::ui
