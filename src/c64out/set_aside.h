// A file that makes room for a new one until that is known to be good.
#pragma once

#include <filesystem>

namespace kelvo::c64out {

// Renames `file`, if it is there, to a free name beside it. On destruction it comes back, in place of whatever took its
// name, unless it was dropped.
class SetAside {
 public:
  // Throws std::runtime_error for a folder and the like, and when the file cannot be renamed.
  explicit SetAside(const std::filesystem::path& file);
  ~SetAside();
  SetAside(const SetAside&) = delete;
  SetAside& operator=(const SetAside&) = delete;

  // The new file is good: the old one goes.
  void Drop();

 private:
  std::filesystem::path file_, aside_;
  bool is_pending_ = true;
};

}  // namespace kelvo::c64out
