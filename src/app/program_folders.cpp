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

}  // namespace

void ProgramFolders::Create() const {
  std::error_code ignored;
  for (const fs::path& folder : {System(), Backup(), Gfx()}) fs::create_directories(folder, ignored);
}

void ProgramFolders::Seed(const fs::path& shipped) const {
  std::error_code error;
  for (const char* folder : {"SYSTEM", "GFX"}) {
    for (const fs::directory_entry& entry : fs::directory_iterator(shipped / folder, error)) {
      std::error_code ignored;
      fs::copy(entry.path(), root_ / folder / entry.path().filename(), fs::copy_options::skip_existing, ignored);
    }
  }
}

std::filesystem::path ChooseProgramFolder(const fs::path& executable_folder, const fs::path& user_folder) {
  return CanWriteIn(executable_folder) ? executable_folder : user_folder;
}

}  // namespace kelvo::app
