#include "convert/conversion.h"

#include "convert/closest_fit.h"
#include "convert/dithering.h"
#include "convert/exact_picture.h"
#include "convert/image_kind.h"

namespace kelvo::convert {
namespace {

constexpr double kThousand = 1000;

constexpr SearchEffort EffortOf(Effort effort) {
  return effort == Effort::kFull ? SearchEffort{6, 5, 4, 3} : SearchEffort{2, 5, 0, 1};
}

// Reports the steps of one conversion.
class Steps {
 public:
  explicit Steps(app::Progress& progress) : progress_(progress), scope_(progress, Conversion::kSteps) {}
  void Next() { progress_.Advance(++done_); }

 private:
  app::Progress& progress_;
  app::ProgressScope scope_;
  int done_ = 0;
};

void Compare(Converted& converted, const ColourErrors& errors) {
  const ColourMap& map = converted.map;
  for (int cell = 0; cell < map.grid.Cells(); ++cell) {
    double sum = 0;
    int changed = 0;
    for (int k = 0; k < CellGrid::kCellPixels; ++k) {
      const std::size_t pixel = map.grid.PixelOf(cell, k);
      sum += static_cast<double>(errors[pixel][map.colours[pixel]]);
      if (map.colours[pixel] != ClosestOf(errors[pixel], kAllColours)) ++changed;
    }
    converted.cell_errors.push_back(static_cast<float>(kThousand * sum / CellGrid::kCellPixels));
    converted.changed_pixels += changed;
    if (changed > 0) ++converted.changed_cells;
    converted.mean_error += kThousand * sum / static_cast<double>(map.grid.Pixels());
  }
}

bool LeavesImageAlone(const Wishes& wishes) {
  const Preparation& preparation = wishes.preparation;
  return wishes.exact && wishes.grid == CellGrid{} && !preparation.crop && preparation.brightness == 0 &&
         preparation.contrast == 0 && preparation.saturation == 0 && preparation.gamma == 1;
}

// The picture that the image is already, in the palette that is wanted or one of the others; empty where it is none.
std::optional<Converted> TakenExactly(const RgbImage& image, const std::vector<model::SurfaceColours>& others,
                                      const Wishes& wishes) {
  if (!LeavesImageAlone(wishes)) return std::nullopt;
  std::vector<model::SurfaceColours> palettes{wishes.palette};
  palettes.insert(palettes.end(), others.begin(), others.end());
  auto map = ExactPicture(image, palettes, wishes.background);
  if (!map) return std::nullopt;
  Converted converted;
  converted.map = std::move(*map);
  converted.exact = true;
  converted.cell_errors.resize(static_cast<std::size_t>(converted.map.grid.Cells()));
  return converted;
}

}  // namespace

Conversion::Conversion(RgbImage image, std::vector<model::SurfaceColours> palettes)
    : image_(std::move(image)), palettes_(std::move(palettes)) {}

const LightMap& Conversion::SampleFor(const Wishes& wishes) {
  const Area area = AreaFor(image_.width, image_.height, wishes.grid, wishes.preparation);
  const std::uint32_t backdrop = wishes.preparation.backdrop;
  const bool kept = sample_ && sample_->area == area && sample_->grid == wishes.grid && sample_->backdrop == backdrop;
  if (!kept) sample_ = Sample{area, wishes.grid, backdrop, SampleLight(image_, area, wishes.grid, backdrop)};
  return sample_->light;
}

Converted Conversion::Convert(const Wishes& wishes, app::Progress& progress) {
  Steps steps(progress);
  if (auto exact = TakenExactly(image_, palettes_, wishes)) return std::move(*exact);
  const CellGrid& grid = wishes.grid;
  const LightMap light = AdjustLight(SampleFor(wishes), wishes.preparation);
  std::vector<Triple> lab;
  for (const Triple& pixel : light) lab.push_back(LabFromLms(LmsFromLinear(pixel)));
  const PaletteLight palette(wishes.palette);
  const ColourErrors errors = ErrorsOf(lab, palette);
  steps.Next();
  const ClosestFit closest = FitClosest(grid, errors);
  steps.Next();
  Converted converted;
  converted.map = wishes.grain == kNoGrain
                      ? DrawClosest(grid, errors, closest, wishes.background.value_or(closest.BestBackground()))
                      : DrawDithered(grid, light, palette, closest, wishes.grain, wishes.background,
                                     EffortOf(wishes.effort), [&] { steps.Next(); });
  Compare(converted, errors);
  for (std::size_t colour = 0; colour < closest.errors.size(); ++colour) {
    converted.background_errors[colour] = kThousand * closest.errors[colour] / static_cast<double>(grid.Pixels());
  }
  return converted;
}

Dither Conversion::ProposedDither() const {
  switch (KindOf(image_)) {
    case ImageKind::kFewColours:
      return kDithers[0];
    case ImageKind::kDrawing:
      return kDithers[1];
    case ImageKind::kPhoto:
      break;
  }
  return kDithers[2];
}

}  // namespace kelvo::convert
