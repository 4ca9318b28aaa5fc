// Disks that are full or write-protected, and users who may not write.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>

namespace kelvo::support {

// A disk of its own, mounted on a folder that is there; only this program sees it.
class SmallDisk {
 public:
  SmallDisk(std::filesystem::path folder, std::size_t bytes);
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  // False where the machine lets nobody mount anything.
  bool IsThere() const { return is_there_; }
  bool MakeReadOnly() const;
  // Writes one more file until nothing fits.
  void FillUp() const;
  void MakeRoom() const;

 private:
  std::filesystem::path folder_;
  bool is_there_;
};

// What `check` finds in a child process that has no more rights than an ordinary user. Empty where a child cannot be
// such a user.
std::optional<bool> HoldsForOrdinaryUser(const std::function<bool()>& check);

}  // namespace kelvo::support
