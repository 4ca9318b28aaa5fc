#include "editing/plotter.h"

#include <string_view>

#include "editing/preferences.h"
#include "model/pixel_place.h"

namespace kelvo::editing {

bool Plotter::Plot(const Points& points, model::C64Colour pen) {
  const FullCell full_cell = app::IsOn(settings_, k4thColReplaces) ? FullCell::kRecolour : FullCell::kRefuse;
  bool refused = false;
  for (const model::PixelPoint& point : points) {
    if (PlotPoint(point, pen, full_cell) == PlotResult::kCellFull) refused = true;
  }
  if (refused) TellRefusal();
  return !refused;
}

PlotResult Plotter::PlotPoint(model::PixelPoint point, model::C64Colour pen, FullCell full_cell) {
  const PlotResult result = PlotPixel(picture_, point.x, point.y, pen, full_cell);
  const int cell = model::LookUpPixel(point.x, point.y).cell;
  if (result == PlotResult::kPlotted || result == PlotResult::kRecoloured) views_.CellChanged(cell);
  if (result == PlotResult::kCellFull) views_.FullCellMet(cell, model::FullCellFate::kRefused);
  if (result == PlotResult::kRecoloured) views_.FullCellMet(cell, model::FullCellFate::kRecoloured);
  return result;
}

void Plotter::TellRefusal() {
  constexpr std::string_view kRefusal = "Not possible - all colors used";
  if (app::IsOn(settings_, kTellRefusalsInStatusBar)) return status_.Warn(kRefusal);
  const bool note_from_now_on = messages_.InformWithChoice(kRefusal, "Tell it in the status bar from now on");
  if (note_from_now_on) settings_.Write(kTellRefusalsInStatusBar, "1");
}

}  // namespace kelvo::editing
