// Images that are a C64's picture already: they come back as they were.
#pragma once

#include <optional>
#include <span>

#include "convert/colour_map.h"
#include "convert/rgb_image.h"
#include "model/palette.h"

namespace kelvo::convert {

// The picture in an image of 160 x 200, of 320 x 200 with every pixel twice, or of a whole screen of 384 x 272 with the
// border, any whole number of times as large. Its colours are those of one of `palettes`, each channel off by 2 at most
// (published palettes differ by 1 in places). Of several backgrounds that the cell rule allows it is the colour of the
// border, else the one that most pixels show. Empty for every other image, and where no background obeys the rule or
// `background` does not.
std::optional<ColourMap> ExactPicture(const RgbImage& image, std::span<const model::SurfaceColours> palettes,
                                      std::optional<model::C64Colour> background);

// Cells that have more than three colours beside `background`, from 0.
std::vector<int> CellsBeyondRule(const ColourMap& map, model::C64Colour background);

// As ExactPicture() reads it, whether its cells obey the rule or not: what to tell of an image that does not. The
// background is the one with the fewest cells beyond the rule.
std::optional<ColourMap> PaletteColoursOf(const RgbImage& image, std::span<const model::SurfaceColours> palettes);

}  // namespace kelvo::convert
