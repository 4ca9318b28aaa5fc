#include "cli/temporary_folder.h"

#include <atomic>
#include <random>

#include "app/number_text.h"
#include "app/whole_file.h"

namespace kelvo::cli {
namespace {

namespace fs = std::filesystem;

std::atomic<int> temporary_folders = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler asks");

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  std::error_code error;
  const fs::path folder = fs::temp_directory_path(error);
  while (!error && path_.empty()) {
    const fs::path path = folder / ("kelvo-cli-" + app::ToHex(static_cast<int>(random() & 0x7FFFFFFF), 8));
    if (fs::create_directory(path, error)) path_ = path;
  }
  if (!error) fs::permissions(path_, fs::perms::owner_all, error);
  if (!error) ++temporary_folders;
  if (error) throw app::FileError("no temporary folder can be made: " + error.message());
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
  --temporary_folders;
}

bool TemporaryFolder::AnyIsThere() {
  return temporary_folders > 0;
}

}  // namespace kelvo::cli
