#include "app/temporary_name.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTemporaryStart = ".kelvo-", kTemporaryEnd = ".tmp";

}  // namespace

fs::path TemporaryName(const fs::path& folder) {
  std::random_device random;
  const std::string number = std::to_string((std::uint64_t{random()} << 32) | random());
  return folder / (std::string(kTemporaryStart) + number + std::string(kTemporaryEnd));
}

PassingPlace::~PassingPlace() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

// In the system's own characters: not every name can be told in others.
bool IsTemporaryName(const fs::path& file) {
  const fs::path::string_type name = file.filename().native(), start = fs::path(kTemporaryStart).native(),
                              end = fs::path(kTemporaryEnd).native(), digits = fs::path("0123456789").native();
  return name.starts_with(start) && name.ends_with(end) &&
         name.find_first_not_of(digits, start.size()) == name.size() - end.size();
}

fs::path FolderOf(const fs::path& target) {
  return target.has_parent_path() ? target.parent_path() : fs::path(".");
}

}  // namespace kelvo::app
