// Colours as light and as the eye tells them apart.
//
// OKLab by Björn Ottosson (2020): linear RGB to the light that three kinds of cones take (LMS), its cube roots to
// lightness and two opponent colours. Light mixes linearly, so LMS is where pixels are added up.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "model/palette.h"

namespace kelvo::convert {

// Three numbers, and one to fill: the compiler (GCC and Clang know such vectors) works on all four at once.
struct alignas(16) Triple {
  float x = 0, y = 0, z = 0, unused = 0;

  using Lanes [[gnu::vector_size(16)]] = float;
  static Triple From(Lanes lanes) { return std::bit_cast<Triple>(lanes); }
  Lanes All() const { return std::bit_cast<Lanes>(*this); }

  Triple& operator+=(const Triple& other) { return *this = From(All() + other.All()); }
  friend Triple operator+(const Triple& a, const Triple& b) { return From(a.All() + b.All()); }
  friend Triple operator-(const Triple& a, const Triple& b) { return From(a.All() - b.All()); }
  friend Triple operator*(const Triple& a, float by) { return From(a.All() * by); }
};

inline float Dot(const Triple& a, const Triple& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

// The squared length.
inline float Square(const Triple& a) {
  return Dot(a, a);
}

// A channel, 0..255, as light, 0..1, by the sRGB curve.
float LightOf(std::uint8_t channel);

// Of 0xAARRGGBB, its alpha left out.
Triple LinearRgb(std::uint32_t pixel);

Triple LmsFromLinear(const Triple& rgb);
Triple CubeRoots(const Triple& lms);
Triple LabFromCubeRoots(const Triple& roots);
inline Triple LabFromLms(const Triple& lms) {
  return LabFromCubeRoots(CubeRoots(lms));
}

// The second matrix of OKLab, by rows: from cube roots to L, a, b.
inline constexpr std::array<std::array<float, 3>, 3> kLabRows{{
    {0.2104542553F, 0.7936177850F, -0.0040720468F},
    {1.9779984951F, -2.4285922050F, 0.4505937099F},
    {0.0259040371F, 0.7827717662F, -0.8086757660F},
}};

// A palette by colour number.
struct PaletteLight {
  explicit PaletteLight(const model::SurfaceColours& colours);

  std::array<Triple, model::C64Colour::kCount> lms, lab;
};

}  // namespace kelvo::convert
