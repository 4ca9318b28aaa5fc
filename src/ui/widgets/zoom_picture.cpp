#include "ui/widgets/zoom_picture.h"

#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "model/palette.h"
#include "ui/widgets/cell_change_tint.h"
#include "ui/widgets/cell_use_tint.h"
#include "ui/widgets/ink.h"

namespace kelvo::ui {
namespace {

constexpr int kSmallestZoomBox = 4;  // display pixels: the height of a box at 4:1
constexpr int kFlashMilliseconds = 350;
constexpr QColor kRefused(255, 64, 48, 170), kRecoloured(255, 255, 255, 80);

QRect QtRect(const model::Rect& rect) {
  return {rect.x, rect.y, rect.width, rect.height};
}

}  // namespace

ZoomPicture::ZoomPicture(model::Surface& surface, const model::ZoomArea& area, QWidget* parent)
    : SurfaceView(surface, kSmallestZoomBox, parent), area_(area) {}

void ZoomPicture::ShowPreview(editing::Points points, model::C64Colour colour) {
  if (points.empty() && preview_.empty()) return;
  preview_ = std::move(points);
  colour_ = colour;
  Refresh();
}

void ZoomPicture::ShowCursor(std::optional<model::PixelPoint> at) {
  if (cursor_ == at) return;
  cursor_ = at;
  Refresh();
}

void ZoomPicture::FlashCell(int cell, model::FullCellFate fate) {
  const auto is_cell = [cell](const Flash& flash) { return flash.cell == cell; };
  if (!area_.ShowsCell(cell) || std::any_of(flashes_.begin(), flashes_.end(), is_cell)) return;
  flashes_.push_back({cell, fate});
  Refresh(area_.CellRect(cell));
  QTimer::singleShot(kFlashMilliseconds, this, [this] {
    flashes_.pop_front();
    Refresh();
  });
}

void ZoomPicture::ShowCellUse(const model::PictureImage* picture) {
  cell_use_ = picture;
  Refresh();
}

void ZoomPicture::ShowChanges(const model::PictureImage& now, const std::optional<model::PictureImage>& before) {
  now_ = &now;
  before_ = before;
  Refresh();
}

void ZoomPicture::PaintOverlay(QPainter& painter) {
  PaintCells(painter);
  PaintFlashes(painter);
  PaintPreview(painter);
  PaintCursor(painter);
}

void ZoomPicture::PaintCells(QPainter& painter) const {
  if (cell_use_ == nullptr && !before_) return;
  for (int cell = 1; cell <= model::PictureImage::kCells; ++cell) {
    if (!area_.ShowsCell(cell)) continue;
    const QRect place = QtRect(area_.CellRect(cell));
    if (cell_use_ != nullptr) PaintCellUse(painter, *cell_use_, cell, place);
    if (before_) PaintCellChange(painter, *before_, *now_, cell, place);
  }
}

void ZoomPicture::PaintFlashes(QPainter& painter) const {
  for (const Flash& flash : flashes_) {
    if (!area_.ShowsCell(flash.cell)) continue;
    painter.fillRect(QtRect(area_.CellRect(flash.cell)),
                     flash.fate == model::FullCellFate::kRefused ? kRefused : kRecoloured);
  }
}

// Black and white lines around the pixel, so that it is seen on every picture; the pixel itself stays free.
void ZoomPicture::PaintCursor(QPainter& painter) const {
  if (!cursor_ || !area_.ShowsPixel(cursor_->x, cursor_->y)) return;
  const QRect box = QtRect(area_.PixelRect(cursor_->x, cursor_->y));
  painter.setBrush(Qt::NoBrush);
  for (const auto& [distance, colour] : {std::pair{1, Qt::white}, std::pair{2, Qt::black}, std::pair{3, Qt::white}}) {
    painter.setPen(colour);
    painter.drawRect(box.adjusted(-distance, -distance, distance - 1, distance - 1));
  }
}

void ZoomPicture::PaintPreview(QPainter& painter) const {
  const QColor fill = QColor::fromRgb(model::SurfaceColour(colour_));
  const QColor rim = InkOn(fill);
  for (const model::PixelPoint& point : preview_) {
    if (!area_.ShowsPixel(point.x, point.y)) continue;
    const model::Rect at = area_.PixelRect(point.x, point.y);
    painter.fillRect(QRect(at.x, at.y, at.width, at.height), rim);
    painter.fillRect(QRect(at.x + 1, at.y + 1, at.width - 2, at.height - 2), fill);
  }
}

}  // namespace kelvo::ui
