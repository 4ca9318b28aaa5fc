// The copy of unsaved work that outlives a crash.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <utility>

#include "app/program_folders.h"
#include "files/document.h"

namespace kelvo::files {

// Two files in BACKUP: the picture in the own format, and the path of the file it belongs to.
struct RecoveryFiles {
  // `slot` tells apart the programs that share a program folder, from 1.
  RecoveryFiles(const app::ProgramFolders& folders, int slot);

  // What is kept there; empty when there is nothing that can be read.
  std::optional<Document> Read() const;
  void Remove() const;

  std::filesystem::path picture, name;
};

class RecoveryCopy {
 public:
  using Time = std::chrono::steady_clock::time_point;

  // `document` outlives the copy.
  RecoveryCopy(const Document& document, RecoveryFiles files) : document_(document), files_(std::move(files)) {}

  // Brings the copy up to date: writes unsaved work that has changed, at most once a minute, and removes the copy of
  // work that was saved or thrown away. Cheap enough to be called often. Throws app::FileError when the copy could not
  // be written; the next try is a minute later.
  void Keep(Time now);
  // The same at once, when the program has to end.
  void KeepNow();
  // The user saved the work or gave it up.
  void Remove();

 private:
  const Document& document_;
  RecoveryFiles files_;
  model::PictureImage written_;
  bool is_there_ = false;
  std::optional<Time> last_try_;
};

}  // namespace kelvo::files
