// Images of other computers that commands read.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/bytes.h"
#include "cli/commands/commands.h"
#include "convert/rgb_image.h"
#include "files/palette_file.h"
#include "model/picture_image.h"

namespace kelvo::cli {

// The most bytes of an image's file.
inline constexpr std::uintmax_t kMostImageBytes = std::uintmax_t{1} << 30;

// The image in a file's bytes, which is not one made of lines (SVG). Throws std::runtime_error with the operand's name.
convert::RgbImage ImageIn(const std::string& operand, const app::Bytes& bytes);

// The palettes that an image may have been drawn in: the one that is chosen, and those that are known.
std::vector<model::SurfaceColours> PalettesOfImages(const files::Palette& chosen);

// The picture that the editor's import makes of an image. Throws PictureSaysNo where --exact asks for one that is a
// picture already, and it is none.
model::PictureImage Imported(const std::string& operand, const app::Bytes& bytes, const Arguments& arguments,
                             const files::Palette& palette);

// --background, where it is given.
std::optional<model::C64Colour> ChosenBackground(const Arguments& arguments);

}  // namespace kelvo::cli
