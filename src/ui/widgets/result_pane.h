// What an image becomes, with the image itself in its place while that is asked for.
#pragma once

#include <vector>

#include "convert/colour_map.h"
#include "ui/widgets/compare_pane.h"
#include "ui/widgets/shown_image.h"

namespace kelvo::ui {

class ResultPane : public ComparePane {
  Q_OBJECT

 public:
  ResultPane(SharedLook& look, QWidget* parent);

  // `errors` has one of each cell.
  void SetMap(const convert::ColourMap& map, std::vector<float> errors);
  void SetOriginal(const ShownImage& image, const convert::Area& area);
  void ShowOriginal(bool on);
  // Marks the tenth of the cells that differ most.
  void ShowWorstCells(bool on);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintOriginal(QPainter& painter) const;
  void PaintWorstCells(QPainter& painter) const;

  QImage picture_;
  convert::CellGrid grid_;
  std::vector<float> errors_;
  ShownImage original_;
  convert::Area area_;
  bool shows_original_ = false, shows_worst_cells_ = false;
};

}  // namespace kelvo::ui
