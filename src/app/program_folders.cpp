#include "app/program_folders.h"

#include <fstream>
#include <system_error>

#include "app/free_name.h"

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

constexpr const char* kStamp = "shipped.txt";  // what is shipped, by its contents

std::string TextOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void CopyMissing(const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(from, ignored)) {
    fs::copy(entry.path(), to / entry.path().filename(), fs::copy_options::skip_existing, ignored);
  }
}

// Makes room for a shipped file: one of that name that is different goes to a free name beside it.
void KeepOld(const fs::path& file, const fs::path& shipped) {
  std::error_code ignored;
  if (!fs::exists(file, ignored) || TextOf(file) == TextOf(shipped)) return;
  fs::rename(file, FreeNameBeside(file), ignored);
}

}  // namespace

void ProgramFolders::Create() const {
  std::error_code ignored;
  for (const fs::path& folder : {System(), Backup(), Gfx()}) fs::create_directories(folder, ignored);
}

void ProgramFolders::Seed(const fs::path& shipped) const {
  std::error_code ignored;
  const fs::path stamp = shipped / "SYSTEM" / kStamp;
  if (fs::exists(stamp, ignored) && TextOf(System() / kStamp) != TextOf(stamp)) {
    fs::remove(System() / kStamp, ignored);
    for (const fs::directory_entry& entry : fs::directory_iterator(shipped / "SYSTEM", ignored)) {
      KeepOld(System() / entry.path().filename(), entry.path());
    }
  }
  CopyMissing(shipped / "SYSTEM", System());
  CopyMissing(shipped / "GFX", Gfx());
}

std::filesystem::path ChooseProgramFolder(const fs::path& executable_folder, const fs::path& user_folder) {
  std::error_code ignored;
  const bool installed = fs::exists(executable_folder / ".." / "share" / "applications" / "kelvo.desktop", ignored);
  return !installed && CanWriteIn(executable_folder) ? executable_folder : user_folder;
}

}  // namespace kelvo::app
