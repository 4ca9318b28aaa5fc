#include "files/recent_files.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/path_text.h"

namespace kelvo::files {
namespace {

constexpr std::array<app::Setting, RecentFiles::kMost> kPlaces{{
    {"Recent", "Recent1", ""},
    {"Recent", "Recent2", ""},
    {"Recent", "Recent3", ""},
    {"Recent", "Recent4", ""},
    {"Recent", "Recent5", ""},
}};

}  // namespace

std::vector<std::filesystem::path> RecentFiles::Paths() const {
  std::vector<std::filesystem::path> paths;
  for (const app::Setting& place : kPlaces) {
    const std::string path = settings_.Read(place);
    if (!path.empty()) paths.push_back(app::PathFromText(path));
  }
  return paths;
}

void RecentFiles::Add(const std::filesystem::path& path) {
  std::vector<std::filesystem::path> paths = Paths();
  if (std::find(paths.begin(), paths.end(), path) == paths.end()) paths.insert(paths.begin(), path);
  Write(std::move(paths));
}

void RecentFiles::Follow(const WhereNow& now) {
  std::vector<std::filesystem::path> paths = Paths();
  for (std::filesystem::path& path : paths) path = now(path);
  std::erase(paths, std::filesystem::path());
  Write(std::move(paths));
}

void RecentFiles::Write(std::vector<std::filesystem::path> paths) {
  paths.resize(kMost);
  for (std::size_t i = 0; i < kPlaces.size(); ++i) settings_.Write(kPlaces[i], app::TextFromPath(paths[i]));
}

}  // namespace kelvo::files
