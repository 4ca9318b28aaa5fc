// Saving the picture in the own format, with its backup and its snapshot.
#pragma once

#include <filesystem>
#include <string>

#include "app/settings_store.h"
#include "app/surroundings.h"
#include "files/document.h"

namespace kelvo::files {

inline constexpr app::Setting kFilePath{"Settings", "FilePath", ""};
inline constexpr app::Setting kFileFilter{"Settings", "FileFilter", "1"};  // the position of the open dialog's last one

// The name that a picture is saved under: `path` itself when it ends in ".kvp", else `path` with its last four
// characters replaced by ".kvp", whatever they are, on purpose: "pic.txt" becomes "pic.kvp", and "picture" "pic.kvp"
// too. Throws std::runtime_error for a path of fewer than four characters.
std::filesystem::path SavedName(const std::filesystem::path& path);

// Writes the picture to SavedName(`path`) and makes that the current file. The
// signature and the background stay in the picture's spare screen bytes.
//
// Nothing that is replaced is lost, whenever the program ends: first the snapshot of the last load or save goes into
// the BACKUP folder under the old name with the time, then what else stands at the target (another program's, or
// another picture's) goes there as "_replaced"; then the file is written, and it becomes the snapshot. Throws
// app::FileError when the picture could not be written, or what another program left there could not be kept: then the
// picture and the file are as they were. Gives what went wrong with the backup or the snapshot of a picture that was
// written, else an empty text.
std::string SaveBitmap(Document& document, const std::filesystem::path& path, const app::Surroundings& with);

}  // namespace kelvo::files
