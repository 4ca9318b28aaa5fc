// Other palettes than the program's own, as others have published them.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "model/palette.h"

namespace kelvo::model {

struct NamedPalette {
  std::string_view name;
  SurfaceColours colours;
};

// The program's own first. Pepto: Philip Timmermann's calculation of a PAL C64's colours (2001). Colodore: his later
// one (2017), at its usual brightness, contrast and saturation.
inline constexpr std::array<NamedPalette, 3> kNamedPalettes{{
    {"Kelvo", kSurfaceColours},
    {"Pepto",
     {0xFF000000, 0xFFFFFFFF, 0xFF68372B, 0xFF70A4B2, 0xFF6F3D86, 0xFF588D43, 0xFF352879, 0xFFB8C76F, 0xFF6F4F25,
      0xFF433900, 0xFF9A6759, 0xFF444444, 0xFF6C6C6C, 0xFF9AD284, 0xFF6C5EB5, 0xFF959595}},
    {"Colodore",
     {0xFF000000, 0xFFFFFFFF, 0xFF813338, 0xFF75CEC8, 0xFF8E3C97, 0xFF56AC4D, 0xFF2E2C9B, 0xFFEDF171, 0xFF8E5029,
      0xFF553800, 0xFFC46C71, 0xFF4A4A4A, 0xFF7B7B7B, 0xFFA9FF9F, 0xFF706DEB, 0xFFB2B2B2}},
}};

inline std::vector<SurfaceColours> NamedColours() {
  std::vector<SurfaceColours> colours(kNamedPalettes.size());
  std::ranges::transform(kNamedPalettes, colours.begin(), &NamedPalette::colours);
  return colours;
}

}  // namespace kelvo::model
