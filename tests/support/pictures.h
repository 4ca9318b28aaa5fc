// Pictures, files and folders for tests.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "app/whole_file.h"
#include "model/pixel_colour.h"

namespace kelvo::support {

inline model::C64Colour Colour(int number) {
  return model::C64Colour::FromByte(static_cast<std::uint8_t>(number));
}

// Gives `cell` (1..1000) its eight lines and its own colours.
inline void SetCell(model::PictureImage& picture, int cell, const std::array<std::uint8_t, 8>& lines, int c11, int c10,
                    int c01) {
  const auto index = static_cast<std::size_t>(cell);
  for (std::size_t line = 0; line < 8; ++line) {
    picture.Bitmap[static_cast<std::size_t>(model::BaseOfCell(cell)) + 1 + line] = lines[line];
  }
  picture.ColourMemory[index] = static_cast<std::uint8_t>(c11);
  picture.ScreenMemory[index] = static_cast<std::uint8_t>(c01 << 4 | c10);
}

inline model::PictureImage PictureWithCell(int cell, const std::array<std::uint8_t, 8>& lines, int c11, int c10,
                                           int c01, int background) {
  model::PictureImage picture{.BackgroundColour = Colour(background)};
  SetCell(picture, cell, lines, c11, c10, c01);
  return picture;
}

// Every slot is used: lines of %00 %01 %10 %11.
inline constexpr std::array<std::uint8_t, 8> kAllSlots{0x1B, 0x1B, 0x1B, 0x1B, 0x1B, 0x1B, 0x1B, 0x1B};

inline int ColourAt(const model::PictureImage& picture, int x, int y) {
  return model::GetPixelData(picture, x, y).colour.Number();
}

// Every byte of the three arrays and the background from a fixed seed.
inline model::PictureImage RandomPicture(unsigned seed) {
  std::mt19937 random(seed);
  model::PictureImage picture;
  for (auto* bytes : {picture.Bitmap.data(), picture.ScreenMemory.data(), picture.ColourMemory.data()}) {
    const std::size_t size = bytes == picture.Bitmap.data() ? picture.Bitmap.size() : picture.ScreenMemory.size();
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(random());
  }
  picture.BackgroundColour = model::C64Colour::FromByte(static_cast<std::uint8_t>(random()));
  return picture;
}

// Cells of few colours and many empty lines: large regions, so that fills reach far and the window of their queue
// overflows, and much that can be packed.
inline model::PictureImage BlotchyPicture(unsigned seed) {
  std::mt19937 random(seed);
  model::PictureImage picture{.BackgroundColour = Colour(static_cast<int>(random() % 4))};
  for (int cell = 1; cell <= 1000; ++cell) {
    std::array<std::uint8_t, 8> lines{};
    for (std::uint8_t& line : lines) line = random() % 4 == 0 ? static_cast<std::uint8_t>(random()) : std::uint8_t{0};
    const auto colour = [&] { return static_cast<int>(random() % 6); };
    SetCell(picture, cell, lines, colour(), colour(), colour());
  }
  return picture;
}

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
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
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
