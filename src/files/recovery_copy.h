// The copies of unsaved work: the one that outlives a crash, and those that are kept before an operation throws work
// away.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

#include "app/clock.h"
#include "app/program_folders.h"
#include "files/document.h"

namespace kelvo::files {

// Files in a folder: the picture in the own format, the path of the file it belongs to, and the session's steps, which
// whoever keeps a history writes.
struct RecoveryFiles {
  // `slot` tells apart the programs that share the folder, from 1.
  RecoveryFiles(const std::filesystem::path& folder, int slot);

  // What is kept there; empty when there is nothing that can be read.
  std::optional<Document> Read() const;
  bool Remove() const;  // true when the copy is gone; the steps stay
  void RemoveSteps() const;

  std::filesystem::path picture, name, steps;
};

class RecoveryCopy {
 public:
  using Time = std::chrono::steady_clock::time_point;

  // `document` outlives the copy.
  explicit RecoveryCopy(const Document& document) : document_(document) {}

  // Another place for the copy, for when it cannot be written to those that were added before.
  void AddPlace(RecoveryFiles files) { places_.push_back({std::move(files)}); }

  // Brings the copy up to date: writes unsaved work at once when it begins and when its file gets another name, then at
  // most once a minute while it changes, and removes the copy of work that was saved or thrown away. Cheap enough to be
  // called often. Throws app::FileError when the copy could be written nowhere; the next try is a minute later.
  void Keep(Time now);
  // The same at once, when the program has to end.
  void KeepNow();
  // The user saved the work or gave it up.
  void Remove();

  // Whether the copy lies in just these files now.
  bool IsIn(const RecoveryFiles& files) const;

 private:
  struct Place {
    RecoveryFiles files;
    bool is_used = false;
  };
  void Write(const RecoveryFiles& files) const;
  void RemoveBut(const Place* newest);

  const Document& document_;
  std::vector<Place> places_;
  std::optional<model::PictureImage> written_;  // what the copy holds; empty where there is none
  std::filesystem::path written_for_;           // the file it belongs to
  std::optional<Time> last_try_;
};

// Writes the picture in memory into the BACKUP folder in the own format, named after the picture with the time and
// "_unsaved"; a number follows where such a file is there already. Gives the path. Throws app::FileError.
std::filesystem::path KeepRescueCopy(const Document& document, const app::ProgramFolders& folders,
                                     const app::Clock& clock);

}  // namespace kelvo::files
