#include "convert/colour_space.h"

#include <algorithm>
#include <cmath>

namespace kelvo::convert {
namespace {

std::array<float, 256> MakeLight() {
  std::array<float, 256> light{};
  for (std::size_t channel = 0; channel < light.size(); ++channel) {
    const double share = static_cast<double>(channel) / 255;
    light[channel] = static_cast<float>(share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4));
  }
  return light;
}

}  // namespace

float LightOf(std::uint8_t channel) {
  static const std::array<float, 256> light = MakeLight();
  return light[channel];
}

Triple LinearRgb(std::uint32_t pixel) {
  const auto light = [&](int shift) { return LightOf(static_cast<std::uint8_t>(pixel >> shift)); };
  return {light(16), light(8), light(0)};
}

Triple LmsFromLinear(const Triple& rgb) {
  return {0.4122214708F * rgb.x + 0.5363325363F * rgb.y + 0.0514459929F * rgb.z,
          0.2119034982F * rgb.x + 0.6806995451F * rgb.y + 0.1073969566F * rgb.z,
          0.0883024619F * rgb.x + 0.2817188376F * rgb.y + 0.6299787005F * rgb.z};
}

Triple CubeRoots(const Triple& lms) {
  return {std::cbrt(lms.x), std::cbrt(lms.y), std::cbrt(lms.z)};
}

Triple LabFromCubeRoots(const Triple& roots) {
  const auto row = [&](const std::array<float, 3>& of) { return of[0] * roots.x + of[1] * roots.y + of[2] * roots.z; };
  return {row(kLabRows[0]), row(kLabRows[1]), row(kLabRows[2])};
}

PaletteLight::PaletteLight(const model::SurfaceColours& colours) {
  for (std::size_t number = 0; number < lms.size(); ++number) {
    lms[number] = LmsFromLinear(LinearRgb(colours[number]));
    lab[number] = LabFromLms(lms[number]);
  }
}

}  // namespace kelvo::convert
