// Sprites out of any file at any place: the text has 64 bytes a sprite, and its pairs are those of the lists.
#include <algorithm>
#include <stdexcept>

#include "input.h"
#include "model/pixel_colour.h"
#include "sprites/sprite_source.h"
#include "sprites/sprite_text.h"
#include "sprites/sprite_view.h"

namespace kelvo::fuzz {
namespace {

using model::C64Colour;

constexpr std::size_t kSizes[] = {10050, 10241};

model::PictureImage Source(Input& input) {
  const int size = input.Below(8);
  auto bytes = input.Rest();
  if (size < 2) bytes.resize(kSizes[size], bytes.empty() ? 0 : bytes.back());
  try {
    model::PictureImage picture = sprites::DecodeSpriteSource(bytes);
    Require(bytes.size() == kSizes[0] || bytes.size() == kSizes[1], "only two sizes are taken");
    return picture;
  } catch (const std::runtime_error&) {
    Require(bytes.size() != kSizes[0] && bytes.size() != kSizes[1], "both sizes are taken");
    return {};
  }
}

std::size_t Count(const std::string& text, char wanted) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), wanted));
}

// The pair of each pixel in binary text, as bits.
std::string Bits(const std::string& text) {
  std::string bits;
  for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
    bits += text.substr(at + 1, 8);
  }
  return bits;
}

void CheckText(const std::vector<sprites::Sprite>& captured, const sprites::ChosenColours& chosen) {
  const std::string hexadecimal = sprites::SpriteText(captured, chosen, sprites::Notation::kHexadecimal);
  Require(Count(hexadecimal, '$') == captured.size() * 64, "64 bytes a sprite");
  Require(hexadecimal.ends_with("\r\n") && Count(hexadecimal, '\n') == captured.size() * 8, "eight whole lines");
  const std::string bits = Bits(sprites::SpriteText(captured, chosen, sprites::Notation::kBinary));
  Require(bits.size() == captured.size() * 64 * 8, "64 bytes of eight bits a sprite");
  constexpr const char* kPairs[] = {"01", "11", "10"};
  for (std::size_t n = 0; n < captured.size(); ++n) {
    for (std::size_t i = 0; i < sprites::kSpritePixels; ++i) {
      const auto* list = std::find(chosen.begin(), chosen.end(), std::optional(captured[n][i]));
      const std::string pair = list == chosen.end() ? "00" : kPairs[list - chosen.begin()];
      Require(bits.compare(n * 512 + i * 2, 2, pair) == 0, "a pixel has the pair of the first list with its colour");
    }
  }
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  const auto capture_size = input.Bit() ? sprites::CaptureSize::k2x2 : sprites::CaptureSize::k1x1;
  const auto alignment = input.Bit() ? sprites::Alignment::kGrid : sprites::Alignment::kFree;
  const model::PixelPoint pointer{input.Byte() * 2 - 128, input.Byte() * 2 - 128};  // also outside the picture
  sprites::ChosenColours chosen;
  for (auto& colour : chosen) colour = model::C64Colour::FromNumber(input.Below(20));
  model::PictureImage picture = fuzz::Source(input);
  const sprites::CaptureArea area = sprites::CaptureAt(pointer, capture_size, alignment);
  fuzz::Require(
      area.left >= 1 && area.top >= 1 && area.left + area.Width() - 1 <= 160 && area.top + area.Height() - 1 <= 200,
      "the captured area lies inside the picture");
  const auto captured = sprites::Capture(picture, area);
  fuzz::CheckText(captured, chosen);
  const auto used = sprites::MostUsedColours(captured, picture.BackgroundColour);
  fuzz::Require(used.size() <= 3, "at most three colours are proposed");
  model::Surface surface(192, 168);
  sprites::DrawSprites(captured, surface);
  sprites::Erase(picture, area);
  for (const auto& sprite : sprites::Capture(picture, area)) {
    for (const auto colour : sprite) fuzz::Require(colour == picture.BackgroundColour, "what is erased is background");
  }
  return 0;
}
