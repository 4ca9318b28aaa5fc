#include "editing/plotter.h"

#include "editing/preferences.h"
#include "model/pixel_place.h"

namespace kelvo::editing {

bool Plotter::Plot(const Points& points, model::C64Colour pen) {
  const FullCell full_cell = IsOn(settings_, k4thColReplaces) ? FullCell::kRecolour : FullCell::kRefuse;
  bool refused = false;
  for (const model::PixelPoint& point : points) {
    const PlotResult result = PlotPixel(picture_, point.x, point.y, pen, full_cell);
    if (result == PlotResult::kCellFull) refused = true;
    if (result == PlotResult::kPlotted || result == PlotResult::kRecoloured) {
      views_.CellChanged(model::LookUpPixel(point.x, point.y).cell);
    }
  }
  if (refused) messages_.Inform("Not possible - all colors used");
  return !refused;
}

}  // namespace kelvo::editing
