// Files and folders for tests.
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "app/bytes.h"
#include "app/path_text.h"

namespace kelvo::support {

// `size` bytes that tell their place: byte p is (p * 7 + 3) mod 256.
inline app::Bytes CountingBytes(std::size_t size) {
  app::Bytes bytes(size);
  for (std::size_t p = 0; p < size; ++p) bytes[p] = static_cast<std::uint8_t>(p * 7 + 3);
  return bytes;
}

inline void WriteFile(const std::filesystem::path& path, const app::Bytes& bytes) {
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

inline app::Bytes ReadFile(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

inline std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(app::TextFromPath(entry.path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

inline void WriteText(const std::filesystem::path& path, std::string_view text) {
  WriteFile(path, app::Bytes(text.begin(), text.end()));
}

inline std::string ReadText(const std::filesystem::path& path) {
  const app::Bytes bytes = ReadFile(path);
  return {bytes.begin(), bytes.end()};
}

// A Koala picture of counting bytes. Gives its path as the program's texts have it.
inline std::string WriteKoala(const std::filesystem::path& path) {
  WriteFile(path, CountingBytes(10003));
  return app::TextFromPath(path);
}

class TempFolder {
 public:
  TempFolder()
      : path_(std::filesystem::temp_directory_path() / ("kelvo-test-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace kelvo::support
