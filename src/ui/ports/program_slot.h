// Which of the programs that share a folder this one is.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

class QLockFile;

namespace kelvo::ui {

inline constexpr int kMostPrograms = 99;

// The first number, from 1 to kMostPrograms, that no running program holds in the folder; it is free again when this
// one ends, however it ends.
class ProgramSlot {
 public:
  // `folder` is where the lock files lie. Numbers that `may_take` says no to are passed over.
  explicit ProgramSlot(
      std::filesystem::path folder, const std::function<bool(int)>& may_take = [](int) { return true; });
  ~ProgramSlot();

  // Empty where nothing can be locked, or all numbers are held: then there is no telling what belongs to whom.
  std::optional<int> Number() const { return number_; }

  // Whether what `number` names belongs to no other running program. Holds the number until the lock is destroyed; null
  // when another program holds it, and when that cannot be told.
  std::unique_ptr<QLockFile> TryLock(int number) const;

 private:
  std::filesystem::path folder_;
  std::unique_ptr<QLockFile> lock_;
  std::optional<int> number_;
};

}  // namespace kelvo::ui
