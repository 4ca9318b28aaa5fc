// The port through which a change of the picture, and what the cell rule made of one, reaches the windows that show it.
#pragma once

#include <string_view>

namespace kelvo::model {

// What became of a full cell that was to take one more colour.
enum class FullCellFate { kRefused, kRecoloured };

// Hears of each change right after it happened, at the size it has; and before the changes of an action, of the action.
class PictureViews {
 public:
  virtual ~PictureViews() = default;
  virtual void ActionBegins([[maybe_unused]] std::string_view caption) {}  // "Draw", "Load castle.kvp"
  virtual void PixelChanged(int x, int y) = 0;                             // 1..160, 1..200
  virtual void CellChanged(int cell) = 0;                                  // 1..1000
  virtual void PictureChanged() = 0;  // loaded, cleared, undone, another background
  virtual void FullCellMet([[maybe_unused]] int cell, [[maybe_unused]] FullCellFate fate) {}  // 1..1000
};

}  // namespace kelvo::model
