// What the file operations need of the windows.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "files/current_file.h"
#include "files/picture_format.h"

namespace kelvo::files {

struct ChosenFile {
  std::filesystem::path path;
  FormatType type;  // the position of the filter that was active
};

// The common dialogs; empty when cancelled.
class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  // "Select file" with OfferedFormats(), starting in `folder` with the filter of `type`.
  virtual std::optional<ChosenFile> SelectFile(const std::filesystem::path& folder, FormatType type) = 0;
  // "Save Kelvo-file", proposing `path`. A file of just the answer's name may be replaced: the dialog has asked.
  virtual std::optional<std::filesystem::path> SaveAs(const std::filesystem::path& path) = 0;
};

// Where the current file shows: the window title, the first status panel, and the entries that need a file.
class FileDisplay {
 public:
  virtual ~FileDisplay() = default;
  virtual void ShowFile(const CurrentFile& file) = 0;
  // Another picture took the place of the one in memory: what belonged to that one (its undo step) is void.
  virtual void PictureReplaced() = 0;
  // The picture was saved: its file holds just what is in memory.
  virtual void PictureSaved() = 0;
  // Files of pictures have other paths now, the current one perhaps among them.
  virtual void FilesMoved(const WhereNow& now) = 0;
};

}  // namespace kelvo::files
