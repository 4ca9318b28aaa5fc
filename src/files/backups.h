// The copies of pictures that the program keeps in BACKUP.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string_view>

#include "app/clock.h"
#include "app/program_folders.h"
#include "app/settings_store.h"
#include "files/current_file.h"

namespace kelvo::files {

// For how many days every backup is kept; 0: for ever.
inline constexpr app::Setting kKeepBackupsDays{"Preferences", "KeepBackupsDays", "30"};
inline constexpr int kMostBackupDays = 36500;

// A copy never takes another's place. Its file is for the user alone, and its name is cut where it would be too long.
// Those that take a copy flush it to the disk and throw app::FileError.
class Backups {
 public:
  // Both outlive the backups.
  Backups(const app::ProgramFolders& folders, const app::Clock& clock) : folders_(folders), clock_(clock) {}

  // Keeps what a picture was at its last load or save, as NAME_YYMMDDHHMM.prg. An older snapshot of that name and
  // minute makes room: a number follows its time.
  void KeepSnapshot(std::span<const std::uint8_t> bytes, const CurrentFile& picture) const;

  // Keeps anything else as `name`, _YYMMDDHHMM, `mark` and `ending`, with a number behind the mark where such a file is
  // there already. Gives its path.
  std::filesystem::path Keep(std::span<const std::uint8_t> bytes, std::string_view name, std::string_view mark,
                             std::string_view ending) const;

  // Of each picture's snapshots of a day that is more than `days` days past, all but the last are removed; with 0 days
  // none. Pictures are told apart by their paths; a snapshot whose picture is not known, and all that is no snapshot,
  // stays. Throws app::FileError.
  void Thin(int days) const;

 private:
  std::filesystem::path Index() const { return folders_.Backup() / "backups.txt"; }
  void MakeRoom(const std::filesystem::path& file, const std::function<std::filesystem::path()>& free_name) const;

  const app::ProgramFolders& folders_;
  const app::Clock& clock_;
};

}  // namespace kelvo::files
