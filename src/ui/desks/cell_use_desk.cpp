#include "ui/desks/cell_use_desk.h"

#include <optional>

#include "model/cell_use.h"

namespace kelvo::ui {

void CellUseDesk::Toggle() {
  is_shown_ = !is_shown_;
  full_view_.ShowCellUse(is_shown_);
  zoom_.ShowCellUse(is_shown_);
  if (!is_shown_) colors_.ShowCellCounts(std::nullopt);
  Refresh();
}

void CellUseDesk::Refresh() {
  if (is_shown_) colors_.ShowCellCounts(model::CellsShowing(document_.picture));
}

}  // namespace kelvo::ui
