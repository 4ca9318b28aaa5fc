#include "files/palette_file.h"

#include <algorithm>
#include <charconv>
#include <sstream>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "model/named_palettes.h"

namespace kelvo::files {
namespace {

constexpr std::uintmax_t kMostBytes = 65536;
constexpr std::uint32_t kOpaque = 0xFF000000U;

std::uint32_t ChannelIn(const std::string& word, const std::string& line) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value, 16);
  if (error == std::errc() && end == word.data() + word.size() && word.size() == 2) return value;
  throw PaletteError("this is no colour: " + line);
}

std::uint32_t ColourIn(const std::string& line) {
  std::istringstream words(line);
  std::uint32_t colour = 0;
  for (int channel = 0; channel < 3; ++channel) {
    std::string word;
    words >> word;
    colour = colour << 8 | ChannelIn(word, line);
  }
  return kOpaque | colour;
}

}  // namespace

model::SurfaceColours ParseVpl(std::string_view text) {
  model::SurfaceColours colours{};
  std::size_t count = 0;
  std::istringstream lines{std::string(text)};
  for (std::string line; count < colours.size() && std::getline(lines, line);) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    if (first == std::string::npos || line[first] == '#') continue;
    colours[count++] = ColourIn(line);
  }
  if (count < colours.size()) {
    throw PaletteError("a palette has 16 colours, this one has " + std::to_string(count));
  }
  return colours;
}

Palette LoadPalette(const std::string& setting) {
  for (const model::NamedPalette& palette : model::kNamedPalettes) {
    if (palette.name == setting) return {setting, palette.colours};
  }
  const std::filesystem::path path = app::PathFromText(setting);
  const app::Bytes bytes = app::ReadWholeFile(path, kMostBytes);
  try {
    return {app::TextFromPath(path.stem()), ParseVpl(std::string(bytes.begin(), bytes.end()))};
  } catch (const PaletteError& error) {
    throw PaletteError(setting + ": " + error.what());
  }
}

}  // namespace kelvo::files
