#include "app/program_folders.h"

#include <fstream>
#include <system_error>

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

bool CanWriteIn(const fs::path& folder) {
  const fs::path probe = folder / ".kelvo-can-write";
  const bool written = static_cast<bool>(std::ofstream(probe) << 'k');
  std::error_code ignored;
  fs::remove(probe, ignored);
  return written;
}

void CopyFiles(const fs::path& from, const fs::path& to, fs::copy_options if_there) {
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(from, ignored)) {
    fs::copy(entry.path(), to / entry.path().filename(), if_there, ignored);
  }
}

}  // namespace

void ProgramFolders::Create() const {
  std::error_code ignored;
  for (const fs::path& folder : {System(), Backup(), Gfx()}) fs::create_directories(folder, ignored);
}

void ProgramFolders::Seed(const fs::path& shipped) const {
  CopyFiles(shipped / "SYSTEM", System(), fs::copy_options::update_existing);
  CopyFiles(shipped / "GFX", Gfx(), fs::copy_options::skip_existing);
}

std::filesystem::path ChooseProgramFolder(const fs::path& executable_folder, const fs::path& user_folder) {
  return CanWriteIn(executable_folder) ? executable_folder : user_folder;
}

}  // namespace kelvo::app
