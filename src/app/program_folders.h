// The program folder and what lies in it.
#pragma once

#include <filesystem>
#include <optional>
#include <utility>

namespace kelvo::app {

// Every file and folder that the program keeps for itself has its place here. Several programs may share one program
// folder; `program` tells them apart, from 1. No call throws.
class ProgramFolders {
 public:
  explicit ProgramFolders(std::filesystem::path root, int program = 1) : root_(std::move(root)), program_(program) {}

  const std::filesystem::path& Root() const { return root_; }
  std::filesystem::path System() const { return root_ / "SYSTEM"; }  // templates, tools, work files of a build
  std::filesystem::path Backup() const { return root_ / "BACKUP"; }  // backups and rescue copies
  std::filesystem::path Gfx() const { return root_ / "GFX"; }        // where pictures are looked for first
  // What the current file held when this program last read or wrote it: "currentbmp.prg", with the program's number
  // from the second on.
  std::filesystem::path Snapshot() const;
  std::filesystem::path ErrorLogFile() const { return root_ / "Kelvo_logg.txt"; }

  // Makes SYSTEM, BACKUP and GFX; the first two are for the user alone. Folders that are there already, or cannot be
  // made, are no error. What writers left in them that were killed goes.
  void Create() const;

  // The first of SYSTEM and BACKUP that files cannot be made in, if there is one.
  std::optional<std::filesystem::path> FindReadOnly() const;

  // Copies what is shipped under `shipped`/SYSTEM and `shipped`/GFX to here. What is here already is left
  // alone, but tools and templates belong together: when others are shipped than before, each that differs is renamed
  // to a free name that ends in ".old" and replaced.
  void Seed(const std::filesystem::path& shipped) const;

 private:
  std::filesystem::path root_;
  int program_;
};

// The folder of the executable where that can be written with what lies in it (a portable copy, a build folder), else
// the user's own. An installed program, which a desktop file in ../share/applications tells or, on Windows, the file
// share/kelvo/installed, writes nothing beside itself, not even for root.
std::filesystem::path ChooseProgramFolder(const std::filesystem::path& executable_folder,
                                          const std::filesystem::path& user_folder);

}  // namespace kelvo::app
