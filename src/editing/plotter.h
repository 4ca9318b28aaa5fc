// What the tools draw with: plots that the windows hear of.
#pragma once

#include "app/messages.h"
#include "app/settings_store.h"
#include "editing/pixel_plot.h"
#include "editing/shapes.h"
#include "model/picture_views.h"

namespace kelvo::editing {

class Plotter {
 public:
  Plotter(model::PictureImage& picture, model::PictureViews& views, app::SettingsStore& settings,
          app::Messages& messages, app::StatusLine& status)
      : picture_(picture), views_(views), settings_(settings), messages_(messages), status_(status) {}

  // Plots every point, as far as it lies in the picture and its cell has room. When cells had none and the preference
  // "4thColReplaces" is off, says so once, at the end: in a box, or in the status bar where the user chose that in the
  // box. True when all went well.
  bool Plot(const Points& points, model::C64Colour pen);

 private:
  PlotResult PlotPoint(model::PixelPoint point, model::C64Colour pen, FullCell full_cell);
  void TellRefusal();

  model::PictureImage& picture_;
  model::PictureViews& views_;
  app::SettingsStore& settings_;
  app::Messages& messages_;
  app::StatusLine& status_;
};

}  // namespace kelvo::editing
