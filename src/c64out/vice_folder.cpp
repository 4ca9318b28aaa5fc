#include "c64out/vice_folder.h"

#include <algorithm>
#include <array>

#include "app/path_text.h"

namespace kelvo::c64out {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr std::array kEmulators{"x64.exe", "x64sc.exe"};
constexpr const char* kDiskTool = "c1541.exe";
constexpr char kBetweenFolders = ';';
#else
constexpr std::array kEmulators{"x64", "x64sc"};
constexpr const char* kDiskTool = "c1541";
constexpr char kBetweenFolders = ':';
#endif

template <typename Holds>
std::string FirstFolder(std::string_view search_path, Holds&& holds) {
  while (!search_path.empty()) {
    const std::string_view folder = search_path.substr(0, search_path.find(kBetweenFolders));
    if (!folder.empty() && holds(folder)) return std::string(folder);
    search_path.remove_prefix(std::min(folder.size() + 1, search_path.size()));
  }
  return {};
}

}  // namespace

std::optional<fs::path> FindEmulator(std::string_view folder) {
  for (const char* name : kEmulators) {
    std::error_code ignored;
    const fs::path emulator = app::PathFromText(folder) / name;
    if (fs::is_regular_file(emulator, ignored)) return emulator;
  }
  return std::nullopt;
}

fs::path DiskTool(std::string_view folder) {
  return app::PathFromText(folder) / kDiskTool;
}

std::string EmulatorOnPath(std::string_view search_path) {
  return FirstFolder(search_path, [](std::string_view folder) { return FindEmulator(folder).has_value(); });
}

std::string DiskToolOnPath(std::string_view search_path) {
  return FirstFolder(search_path, [](std::string_view folder) {
    std::error_code ignored;
    return fs::is_regular_file(DiskTool(folder), ignored);
  });
}

ViceFolderState CheckViceFolder(std::string_view typed) {
  if (typed.empty()) return ViceFolderState::kEmpty;
  std::error_code ignored;
  if (typed.ends_with(".exe") || fs::is_regular_file(app::PathFromText(typed), ignored)) {
    return ViceFolderState::kExecutable;
  }
  return FindEmulator(typed) ? ViceFolderState::kCorrect : ViceFolderState::kIncorrect;
}

}  // namespace kelvo::c64out
