// The five pictures opened last, kept in the settings.
#pragma once

#include <filesystem>
#include <vector>

#include "app/settings_store.h"
#include "files/current_file.h"

namespace kelvo::files {

class RecentFiles {
 public:
  static constexpr int kMost = 5;

  explicit RecentFiles(app::SettingsStore& settings) : settings_(settings) {}

  // At most kMost paths, the latest first; empty places in the settings are left out.
  std::vector<std::filesystem::path> Paths() const;

  // A path that is in the list keeps its place; a new one goes to the front, and the last of five drops out.
  void Add(const std::filesystem::path& path);

  // Files have other paths now; those that are gone drop out.
  void Follow(const WhereNow& now);

 private:
  void Write(std::vector<std::filesystem::path> paths);

  app::SettingsStore& settings_;
};

}  // namespace kelvo::files
