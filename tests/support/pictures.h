// Pictures and files for tests.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "app/whole_file.h"
#include "model/picture_image.h"

namespace kelvo::support {

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

inline void WriteText(const std::filesystem::path& path, std::string_view text) {
  WriteFile(path, app::Bytes(text.begin(), text.end()));
}

inline std::string ReadText(const std::filesystem::path& path) {
  const app::Bytes bytes = ReadFile(path);
  return {bytes.begin(), bytes.end()};
}

}  // namespace kelvo::support
