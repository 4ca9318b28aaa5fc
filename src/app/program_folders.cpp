#include "app/program_folders.h"

#include <string>
#include <system_error>

#include "app/durable_file.h"
#include "app/file_name.h"
#include "app/folder_entries.h"
#include "app/whole_file.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

constexpr const char* kStamp = "shipped.txt";  // what is shipped, by its contents

// Nothing for what is no file, or cannot be read.
std::optional<Bytes> ContentsOf(const fs::path& file) {
  try {
    return ReadWholeFile(file, kMostBytesToCopy);
  } catch (const FileError&) {
    return std::nullopt;
  }
}

void CopyMissing(const fs::path& from, const fs::path& to) {
  for (const fs::path& entry : EntriesOf(from)) {
    const fs::path copy = to / entry.filename();
    std::error_code ignored;
    if (!fs::exists(fs::symlink_status(copy, ignored))) fs::copy(entry, copy, ignored);
  }
}

// A folder for the user alone, whatever was there already.
void MakePrivate(const fs::path& folder) {
  std::error_code ignored;
  fs::create_directory(folder, ignored);
  fs::permissions(folder, fs::perms::group_all | fs::perms::others_all, fs::perm_options::remove, ignored);
}

// Makes room for a shipped file: one of that name that is different goes to a free name beside it.
void KeepOld(const fs::path& file, const fs::path& shipped) {
  std::error_code ignored;
  if (!fs::exists(fs::symlink_status(file, ignored)) || ContentsOf(file) == ContentsOf(shipped)) return;
  fs::rename(file, FreeNameBeside(file), ignored);
}

}  // namespace

fs::path ProgramFolders::Snapshot() const {
  return System() / (program_ == 1 ? "currentbmp.prg" : "currentbmp_" + std::to_string(program_) + ".prg");
}

void ProgramFolders::Create() const {
  std::error_code ignored;
  if (fs::create_directories(root_, ignored)) MakePrivate(root_);
  fs::create_directory(Gfx(), ignored);
  for (const fs::path& folder : {System(), Backup()}) {
    MakePrivate(folder);
    SweepTemporaryFiles(folder);
  }
}

std::optional<fs::path> ProgramFolders::FindReadOnly() const {
  for (const fs::path& folder : {System(), Backup()}) {
    if (!CanWriteIn(folder)) return folder;
  }
  return std::nullopt;
}

void ProgramFolders::Seed(const fs::path& shipped) const {
  std::error_code ignored;
  const fs::path stamp = shipped / "SYSTEM" / kStamp;
  if (fs::exists(stamp, ignored) && ContentsOf(System() / kStamp) != ContentsOf(stamp)) {
    fs::remove(System() / kStamp, ignored);
    for (const fs::path& entry : EntriesOf(shipped / "SYSTEM")) KeepOld(System() / entry.filename(), entry);
  }
  CopyMissing(shipped / "SYSTEM", System());
  CopyMissing(shipped / "GFX", Gfx());
}

fs::path ChooseProgramFolder(const fs::path& executable_folder, const fs::path& user_folder) {
  std::error_code ignored;
  for (const char* told_by : {"../share/applications/kelvo.desktop", "share/kelvo/installed"}) {
    if (fs::exists(executable_folder / told_by, ignored)) return user_folder;
  }
  const ProgramFolders portable(executable_folder);
  for (const fs::path& folder : {portable.Root(), portable.System(), portable.Backup()}) {
    const bool is_missing = folder != portable.Root() && !fs::exists(folder, ignored);
    if (!is_missing && !CanWriteIn(folder)) return user_folder;
  }
  return executable_folder;
}

}  // namespace kelvo::app
