// Renaming many files of a folder as one step: all of it is done, or nothing has changed.
#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <stdexcept>
#include <system_error>

#include "app/durable_file.h"

namespace kelvo::anim {

// Names of files in one folder.
struct Renaming {
  std::filesystem::path from, to;
};

// Nothing was renamed; or it says that what is halfway is put right later.
class RenamingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Renames one file, but never over another one, as app::RenameToNew does.
using RenameFile = std::function<std::error_code(const std::filesystem::path&, const std::filesystem::path&)>;

// All files leave their names before the first takes a new one, so names may be exchanged; a name that another file has
// is refused. When one cannot be renamed, those before it get their names back. What is planned is written down in the
// folder first, for SettleRenaming(). Throws RenamingError.
void RenameAll(const std::filesystem::path& folder, std::span<const Renaming> renamings,
               const RenameFile& rename = app::RenameToNew);

// Puts right what a program left that was ended while it renamed: either all files get their old names back, or all get
// their new ones. Where one's name is taken meanwhile it gets a free one beside it. Nothing, mostly; and nothing
// while another program is at it. Throws RenamingError when the files are halfway still.
void SettleRenaming(const std::filesystem::path& folder, const RenameFile& rename = app::RenameToNew);

}  // namespace kelvo::anim
