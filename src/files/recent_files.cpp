#include "files/recent_files.h"

#include <algorithm>
#include <array>

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

std::vector<std::string> RecentFiles::Paths() const {
  std::vector<std::string> paths;
  for (const app::Setting& place : kPlaces) {
    std::string path = settings_.Read(place);
    if (!path.empty()) paths.push_back(std::move(path));
  }
  return paths;
}

void RecentFiles::Add(std::string_view path) {
  std::vector<std::string> paths = Paths();
  if (std::find(paths.begin(), paths.end(), path) == paths.end()) paths.insert(paths.begin(), std::string(path));
  paths.resize(kMost);
  for (std::size_t i = 0; i < kPlaces.size(); ++i) settings_.Write(kPlaces[i], paths[i]);
}

}  // namespace kelvo::files
