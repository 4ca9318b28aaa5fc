// Which snapshots lie in BACKUP, and of which pictures they are.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kelvo::files {

struct BackupNote {
  std::string file_name;  // in BACKUP
  std::string stamp;      // when it was made: YYMMDDHHMM
  std::string picture;    // the path of the picture's file

  bool operator==(const BackupNote&) const = default;
};

// The index is a text file: a line for each snapshot in the order in which they were made, its fields with tabs in
// between.

// The notes of an index; none where there is no such file. Lines that are no notes are left out. Throws app::FileError.
std::vector<BackupNote> ReadBackupIndex(const std::filesystem::path& index);

// Adds a note, in one piece, as several programs may share the index. A note that is no line is left out, and so is one
// that cannot be written: its snapshot is never removed then.
void AddToBackupIndex(const std::filesystem::path& index, const BackupNote& note);

// Replaces the whole index. Throws app::FileError.
void WriteBackupIndex(const std::filesystem::path& index, const std::vector<BackupNote>& notes);

}  // namespace kelvo::files
