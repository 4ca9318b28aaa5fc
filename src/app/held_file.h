// A file that one program at a time holds, so that others leave alone what it stands for.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>

namespace kelvo::app {

class HeldFile {
 public:
  // Holds `file` for as long as the object lives, or until the program ends in whatever way. Others can read the file
  // and remove it. Empty where it is not there, is held already, or cannot be written. A folder can be held likewise,
  // but not on Windows.
  static std::optional<HeldFile> Hold(const std::filesystem::path& file);

  HeldFile(HeldFile&& other) noexcept : handle_(std::exchange(other.handle_, kNone)) {}
  HeldFile& operator=(HeldFile&&) = delete;
  ~HeldFile();

 private:
  static constexpr std::intptr_t kNone = -1;

  explicit HeldFile(std::intptr_t handle) : handle_(handle) {}

  std::intptr_t handle_;
};

}  // namespace kelvo::app
