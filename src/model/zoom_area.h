// Which part of the picture the zoom window shows, and how its pixels map onto the picture's.
#pragma once

#include <optional>

#include "model/pixel_place.h"
#include "model/surface.h"

namespace kelvo::model {

enum class ZoomMove { kLeft, kRight, kUp, kDown, kPageUp, kPageDown, kRowStart, kRowEnd };
enum class ZoomStep { kCell, kScreen };

// The origin counts in full-view display pixels (two per picture pixel across, one down) and always lies on a cell.
// Every change keeps the area inside the picture.
class ZoomArea {
 public:
  // At first the zoomed picture fills 640 x 576 display pixels at either factor, inside a border of 8.
  static constexpr int kBorder = 8, kWidth = 640, kHeight = 576;

  int ZoomOriginX() const { return origin_x_; }
  int ZoomOriginY() const { return origin_y_; }
  int Magnification() const { return magnification_; }
  bool Is8X() const { return magnification_ == 8; }

  // 4 or 8; any other number is taken as 4. The area starts at the top left again.
  void SetMagnification(int magnification);

  // The same, but the picture pixel at a place of the zoom surface stays under that place, as far as the edges allow.
  void SetMagnificationAround(int magnification, int surface_x, int surface_y);

  // The display pixels that there are for the zoomed picture, without its border. The whole cells that fit are shown,
  // at least one and at most the picture's.
  void SetRoom(int width, int height);

  // What the window shows, in full-view display pixels: at first 160 x 144 at 4, 80 x 72 at 8.
  int VisibleWidth() const { return CellsWide() * 8; }
  int VisibleHeight() const { return CellsHigh() * 8; }
  int CellsWide() const;  // 1..40
  int CellsHigh() const;  // 1..25

  // What showing it takes, border included.
  int SurfaceWidth() const { return VisibleWidth() * magnification_ + 2 * kBorder; }
  int SurfaceHeight() const { return VisibleHeight() * magnification_ + 2 * kBorder; }

  // Places the area around cell `col` (1..40), `row` (1..25): it is in the middle of what is shown, or one cell before
  // that.
  void CentreOn(int col, int row);
  void MoveTo(int origin_x, int origin_y);
  void Move(ZoomMove move, ZoomStep step);
  // Moves no further than it takes to show pixel x (1..160), y (1..200).
  void Reveal(int x, int y);

  // The sides of one picture pixel's box.
  int BoxWidth() const { return magnification_ * 2; }
  int BoxHeight() const { return magnification_; }

  PixelPoint Middle() const;            // of what is shown
  bool ShowsPixel(int x, int y) const;  // 1..160, 1..200
  bool ShowsCell(int cell) const;       // 1..1000
  Rect CellRect(int cell) const;        // on the zoom surface, border included
  Rect PixelRect(int x, int y) const;

  // The picture pixel at a place of the zoom surface, counted from 0. The place may lie outside: the point follows on.
  PixelPoint PixelAt(int surface_x, int surface_y) const;
  // The same, or nothing on the border and outside.
  std::optional<PixelPoint> VisiblePixelAt(int surface_x, int surface_y) const;

  friend bool operator==(const ZoomArea&, const ZoomArea&) = default;

 private:
  int origin_x_ = 0, origin_y_ = 0, magnification_ = 4;
  int room_width_ = kWidth, room_height_ = kHeight;
};

}  // namespace kelvo::model
