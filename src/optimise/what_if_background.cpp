#include "optimise/what_if_background.h"

#include <algorithm>

#include "model/cell_use.h"
#include "model/cell_view.h"
#include "model/pixel_colour.h"

namespace kelvo::optimise {
namespace {

using model::BitPair;

// True when pixels of an own colour of the cell show `colour` now.
bool ShowsAsOwn(const model::PictureImage& picture, int cell, const std::array<int, 4>& count,
                model::C64Colour colour) {
  return std::any_of(model::kOwnSlots.begin(), model::kOwnSlots.end(), [&](BitPair slot) {
    return count[static_cast<std::size_t>(slot)] > 0 && model::ColourInCell(picture, cell, slot) == colour;
  });
}

BackgroundEffect EffectOf(const model::PictureImage& picture, model::C64Colour background) {
  model::PictureImage changed = picture;
  changed.BackgroundColour = background;
  BackgroundEffect effect;
  if (background == picture.BackgroundColour) return effect;
  for (int cell = 1; cell <= model::PictureImage::kCells; ++cell) {
    const auto count = model::CountPairs(picture, cell);
    if (!ShowsAsOwn(picture, cell, count, background)) continue;
    if (count[static_cast<std::size_t>(BitPair::k00)] > 0) {
      ++effect.clash;
    } else if (model::FreeOwnColours(changed, cell) > model::FreeOwnColours(picture, cell)) {
      ++effect.gain_room;
    }
  }
  return effect;
}

}  // namespace

std::array<BackgroundEffect, model::C64Colour::kCount> WhatIfBackground(const model::PictureImage& picture) {
  std::array<BackgroundEffect, model::C64Colour::kCount> effects;
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    effects[static_cast<std::size_t>(number)] = EffectOf(picture, *model::C64Colour::FromNumber(number));
  }
  return effects;
}

}  // namespace kelvo::optimise
