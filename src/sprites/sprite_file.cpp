#include "sprites/sprite_file.h"

#include <algorithm>
#include <array>

#include "app/number_text.h"
#include "app/text.h"
#include "sprites/sprite_text.h"

namespace kelvo::sprites {
namespace {

struct Assembler {
  std::string_view name, comment, bytes, after_label;
};

constexpr std::array<Assembler, 4> kAssemblers{{
    {"64tass", "; ", ".byte ", ""},
    {"acme", "; ", "!byte ", ""},
    {"kickass", "// ", ".byte ", ":"},
    {"ca65", "; ", ".byte ", ":"},
}};

constexpr int kMulticolour = 0x80;
constexpr std::size_t kBytesInLine = 8;

// By list; one that is empty counts as 0 in registers.
ChosenColours ColoursFor(const std::vector<Sprite>& sprites, model::C64Colour background) {
  const auto used = MostUsedColours(sprites, background);
  ChosenColours chosen;
  std::copy(used.begin(), used.end(), chosen.begin());
  return chosen;
}

char NumberIn(const ChosenColours& chosen, std::size_t list) {
  return static_cast<char>(chosen[list].value_or(model::C64Colour()).Byte());
}

// 64 bytes a sprite.
std::string BytesOf(const std::vector<Sprite>& sprites, const ChosenColours& chosen) {
  std::string bytes;
  for (const Sprite& sprite : sprites) {
    for (const std::uint8_t byte : SpriteBytes(sprite, chosen)) bytes += static_cast<char>(byte);
    bytes += static_cast<char>(kMulticolour | NumberIn(chosen, 2));
  }
  return bytes;
}

std::string SourceOf(const Assembler& assembler, const std::vector<Sprite>& sprites, const ChosenColours& chosen,
                     const std::string& title) {
  const std::string bytes = BytesOf(sprites, chosen);
  const auto colour = [&](std::size_t list) { return std::to_string(NumberIn(chosen, list)); };
  std::string text = std::string(assembler.comment) + app::Without("\r\n", title) + ": $D025 = " + colour(0) +
                     ", $D026 = " + colour(1) + ", sprites' own = " + colour(2) + "\n";
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    if (at % 64 == 0) text += "sprite_" + std::to_string(at / 64 + 1) + std::string(assembler.after_label) + "\n";
    text += at % kBytesInLine == 0 ? "    " + std::string(assembler.bytes) : ",";
    text += "$" + app::ToHex(static_cast<std::uint8_t>(bytes[at]));
    if (at % kBytesInLine == kBytesInLine - 1) text += "\n";
  }
  return text;
}

// Version 1: how many sprites and animations there are, each less one, the colours, the sprites, and one animation,
// empty.
std::string EditorFile(const std::vector<Sprite>& sprites, const ChosenColours& chosen, model::C64Colour background) {
  constexpr char kVersion = 1;
  std::string file{'S', 'P', 'D', kVersion, static_cast<char>(sprites.size() - 1), 0};
  file += {static_cast<char>(background.Byte()), NumberIn(chosen, 0), NumberIn(chosen, 1)};
  return file + BytesOf(sprites, chosen) + std::string(4, '\0');
}

}  // namespace

std::string SpriteFile(std::string_view format, const std::vector<Sprite>& sprites, model::C64Colour background,
                       const std::string& title) {
  const ChosenColours chosen = ColoursFor(sprites, background);
  if (format == "bin") return BytesOf(sprites, chosen);
  if (format == "spd") return EditorFile(sprites, chosen, background);
  const auto* assembler = std::ranges::find(kAssemblers, format, &Assembler::name);
  if (assembler == kAssemblers.end()) return SpriteText(sprites, chosen, Notation::kBinary);
  return SourceOf(*assembler, sprites, chosen, title);
}

}  // namespace kelvo::sprites
