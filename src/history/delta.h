// What differs between two pictures, in few bytes: it turns each of the two into the other.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "app/bytes.h"
#include "model/picture_image.h"

namespace kelvo::history {

// Every byte of a picture in a row, the spare ones included.
inline constexpr std::size_t kStateBytes = std::tuple_size_v<decltype(model::PictureImage::Bitmap)> +
                                           std::tuple_size_v<decltype(model::PictureImage::ScreenMemory)> +
                                           std::tuple_size_v<decltype(model::PictureImage::ColourMemory)> + 3;
using State = std::array<std::uint8_t, kStateBytes>;

State StateOf(const model::PictureImage& picture);
model::PictureImage PictureOf(const State& state);

// Empty where the two are the same.
app::Bytes Difference(const State& one, const State& other);

// Turns `state`, one of the two that `delta` was made of, into the other. Throws DamagedSteps for bytes that are no
// difference; `state` is of no use then.
void Apply(std::span<const std::uint8_t> delta, State& state);

}  // namespace kelvo::history
