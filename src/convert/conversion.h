// From an image to a picture that a C64 shows.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "app/long_work.h"
#include "convert/colour_map.h"
#include "convert/preparation.h"
#include "model/palette.h"

namespace kelvo::convert {

// How much a pixel's own lightness counts beside what the eye sees of all: the more, the finer the dither.
inline constexpr float kNoGrain = 0, kStrongestGrain = 0.45F, kDefaultGrain = 1.8F, kFineGrain = 5.2F,
                       kFaintestGrain = 16;

struct Dither {
  std::string_view name;
  float grain;
};
inline constexpr std::array<Dither, 4> kDithers{
    {{"none", kNoGrain}, {"fine", kFineGrain}, {"default", kDefaultGrain}, {"strong", kStrongestGrain}}};

// Quick is for what changes while one looks: a fifth of the time, and nearly the same.
enum class Effort { kFull, kQuick };

struct Wishes {
  Preparation preparation{};
  float grain = kDefaultGrain;                   // kNoGrain, else kStrongestGrain..kFaintestGrain
  std::optional<model::C64Colour> background{};  // else the best one
  model::SurfaceColours palette = model::kSurfaceColours;
  CellGrid grid{};
  Effort effort = Effort::kFull;
  // Whether an image that is such a picture already may come back as it is: only for a whole picture, and where the
  // preparation leaves it alone.
  bool exact = true;
};

struct Converted {
  ColourMap map;
  bool exact = false;  // the image was such a picture already
  // Pixels that are not in the palette's colour that is closest to the image, and the cells that have such pixels.
  int changed_pixels = 0, changed_cells = 0;
  // Squared distances in OKLab between pixels of picture and image, times 1000: their mean, the mean of each cell, and
  // for each background the least mean that is possible (without dither).
  double mean_error = 0;
  std::vector<float> cell_errors;
  std::array<double, model::C64Colour::kCount> background_errors{};
};

// Converts one image again and again. What does not change is kept from one time to the next.
class Conversion {
 public:
  // `palettes` are those that an exact picture may be drawn in, besides the one wished for. The image must not be
  // empty.
  Conversion(RgbImage image, std::vector<model::SurfaceColours> palettes);

  // The same image and wishes give the same picture. The progress runs from 0 to kSteps; who does not want to wait for
  // the end throws from its Advance(), and may then ask again.
  static constexpr int kSteps = 9;
  Converted Convert(const Wishes& wishes, app::Progress& progress);

  const RgbImage& Image() const { return image_; }

  // What suits this kind of image: none or fine for a drawing, default for a photo.
  Dither ProposedDither() const;

 private:
  struct Sample {
    Area area;
    CellGrid grid;
    std::uint32_t backdrop;
    LightMap light;
  };

  const LightMap& SampleFor(const Wishes& wishes);

  RgbImage image_;
  std::vector<model::SurfaceColours> palettes_;
  std::optional<Sample> sample_;
};

}  // namespace kelvo::convert
