#include "ui/widgets/result_pane.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "model/palette.h"

namespace kelvo::ui {
namespace {

constexpr int kPixelWidth = 2;  // of the display
constexpr int kOneIn = 10;      // cells that differ most

QImage ImageOf(const convert::ColourMap& map) {
  QImage image(map.grid.Width(), map.grid.Height(), QImage::Format_RGB32);
  std::size_t pixel = 0;
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) row[x] = model::ShownPalette::Colours().at(map.colours[pixel++]);
  }
  return image;
}

}  // namespace

ResultPane::ResultPane(SharedLook& look, QWidget* parent) : ComparePane(look, parent) {
  setObjectName("picResult");
  setAccessibleName("Picture made of it");
}

void ResultPane::SetMap(const convert::ColourMap& map, std::vector<float> errors) {
  picture_ = ImageOf(map);
  grid_ = map.grid;
  errors_ = std::move(errors);
  update();
}

void ResultPane::SetOriginal(const ShownImage& image, const convert::Area& area) {
  original_ = image;
  area_ = area;
  update();
}

void ResultPane::ShowOriginal(bool on) {
  shows_original_ = on;
  update();
}

void ResultPane::ShowWorstCells(bool on) {
  shows_worst_cells_ = on;
  update();
}

void ResultPane::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintGround(painter);
  if (shows_original_) {
    PaintOriginal(painter);
  } else if (!picture_.isNull()) {
    painter.drawImage(PictureRect(), picture_);
    if (shows_worst_cells_) PaintWorstCells(painter);
  }
  PaintFocus(painter);
}

void ResultPane::PaintOriginal(QPainter& painter) const {
  if (original_.pixels.isNull()) return;
  const QRectF place = PictureRect();
  painter.save();
  painter.setClipRect(place);
  painter.fillRect(place, original_.backdrop);
  original_.Draw(painter, original_.WholeAround(area_, place));
  painter.restore();
}

void ResultPane::PaintWorstCells(QPainter& painter) const {
  std::vector<float> sorted = errors_;
  const auto bound = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / kOneIn);
  std::nth_element(sorted.begin(), bound, sorted.end(), std::greater<>());
  const QRectF place = PictureRect();
  const double unit = place.width() / (grid_.Width() * kPixelWidth);
  const QSizeF cell(convert::CellGrid::kCellWidth * kPixelWidth * unit, convert::CellGrid::kCellHeight * unit);
  painter.setPen(QColor(255, 60, 60));
  painter.setBrush(QColor(255, 40, 40, 90));
  for (int number = 0; number < grid_.Cells(); ++number) {
    const float error = errors_.at(static_cast<std::size_t>(number));
    if (error <= 0 || error < *bound) continue;
    const int column = number % grid_.cells_wide, row = number / grid_.cells_wide;
    const QPointF at(column * cell.width(), row * cell.height());
    painter.drawRect(QRectF(place.topLeft() + at, cell).adjusted(0, 0, -1, -1));
  }
}

}  // namespace kelvo::ui
