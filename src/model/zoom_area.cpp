#include "model/zoom_area.h"

#include <algorithm>
#include <cmath>

#include "model/full_view.h"
#include "model/picture_image.h"
#include "model/pixel_place.h"

namespace kelvo::model {

void ZoomArea::SetRoom(int width, int height) {
  room_width_ = width;
  room_height_ = height;
  MoveTo(origin_x_, origin_y_);
}

int ZoomArea::CellsWide() const {
  return std::clamp(room_width_ / (8 * magnification_), 1, PictureImage::kCellsWide);
}

int ZoomArea::CellsHigh() const {
  return std::clamp(room_height_ / (8 * magnification_), 1, PictureImage::kCellsHigh);
}

void ZoomArea::SetMagnification(int magnification) {
  magnification_ = magnification == 8 ? 8 : 4;
  MoveTo(0, 0);
}

void ZoomArea::SetMagnificationAround(int magnification, int surface_x, int surface_y) {
  const PixelPoint kept = PixelAt(surface_x, surface_y);
  SetMagnification(magnification);
  const int half_cell = 4;
  MoveTo((kept.x - 1) * 2 - (surface_x - kBorder) / magnification_ + half_cell,
         kept.y - 1 - (surface_y - kBorder) / magnification_ + half_cell);
}

void ZoomArea::CentreOn(int col, int row) {
  MoveTo((col - (CellsWide() + 1) / 2) * 8, (row - (CellsHigh() + 2) / 2) * 8);
}

void ZoomArea::MoveTo(int origin_x, int origin_y) {
  origin_x_ = std::clamp(origin_x, 0, kFullViewWidth - VisibleWidth()) / 8 * 8;
  origin_y_ = std::clamp(origin_y, 0, kFullViewHeight - VisibleHeight()) / 8 * 8;
}

void ZoomArea::Move(ZoomMove move, ZoomStep step) {
  const int across = step == ZoomStep::kScreen ? 80 : 8;
  const int down = step == ZoomStep::kScreen ? 72 : 8;
  switch (move) {
    case ZoomMove::kLeft:
      return MoveTo(origin_x_ - across, origin_y_);
    case ZoomMove::kRight:
      return MoveTo(origin_x_ + across, origin_y_);
    case ZoomMove::kUp:
      return MoveTo(origin_x_, origin_y_ - down);
    case ZoomMove::kDown:
      return MoveTo(origin_x_, origin_y_ + down);
    case ZoomMove::kPageUp:
      return MoveTo(origin_x_, origin_y_ - VisibleHeight());
    case ZoomMove::kPageDown:
      return MoveTo(origin_x_, origin_y_ + VisibleHeight());
    case ZoomMove::kRowStart:
      return MoveTo(0, origin_y_);
    case ZoomMove::kRowEnd:
      return MoveTo(kFullViewWidth, origin_y_);
  }
}

void ZoomArea::Reveal(int x, int y) {
  // The origin that shows the cell at the far edge, at the near edge, or the one that is.
  const auto reveal = [](int cell_begin, int origin, int visible) {
    return std::clamp(origin, cell_begin + 8 - visible / 8 * 8, cell_begin);
  };
  MoveTo(reveal((x - 1) * 2 / 8 * 8, origin_x_, VisibleWidth()), reveal((y - 1) / 8 * 8, origin_y_, VisibleHeight()));
}

PixelPoint ZoomArea::Middle() const {
  return {(origin_x_ + VisibleWidth() / 2) / 2 + 1, origin_y_ + VisibleHeight() / 2 + 1};
}

bool ZoomArea::ShowsPixel(int x, int y) const {
  const int display_x = (x - 1) * 2 - origin_x_, display_y = y - 1 - origin_y_;
  return display_x >= 0 && display_x < VisibleWidth() && display_y >= 0 && display_y < VisibleHeight();
}

bool ZoomArea::ShowsCell(int cell) const {
  const Rect at = FullViewCellRect(cell);
  return ShowsPixel(at.x / 2 + 1, at.y + 1);
}

Rect ZoomArea::CellRect(int cell) const {
  const Rect at = FullViewCellRect(cell);
  return {kBorder + (at.x - origin_x_) * magnification_, kBorder + (at.y - origin_y_) * magnification_,
          at.width * magnification_, at.height * magnification_};
}

Rect ZoomArea::PixelRect(int x, int y) const {
  return {kBorder + ((x - 1) * 2 - origin_x_) * magnification_, kBorder + (y - 1 - origin_y_) * magnification_,
          BoxWidth(), BoxHeight()};
}

PixelPoint ZoomArea::PixelAt(int surface_x, int surface_y) const {
  const auto boxes = [](int distance, int side) { return static_cast<int>(std::floor(double(distance) / side)); };
  return {origin_x_ / 2 + boxes(surface_x - kBorder, BoxWidth()) + 1,
          origin_y_ + boxes(surface_y - kBorder, BoxHeight()) + 1};
}

std::optional<PixelPoint> ZoomArea::VisiblePixelAt(int surface_x, int surface_y) const {
  const PixelPoint point = PixelAt(surface_x, surface_y);
  if (!ShowsPixel(point.x, point.y)) return std::nullopt;
  return point;
}

}  // namespace kelvo::model
