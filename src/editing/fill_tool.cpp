#include "editing/fill_tool.h"

#include "editing/preferences.h"

namespace kelvo::editing {

PressResult FillTool::Press(const PointerEvent& event) {
  const app::WaitScope wait(with_.pointer);
  undo_.SaveUndoData("Undo fill");
  const FullCellInFill full_cell =
      IsOn(with_.settings, kReplaceLeastUsedColWhenFilling) ? FullCellInFill::kReplaceLeastUsed : FullCellInFill::kKeep;
  app::Guarded(with_.log, "MDIFormMenu_FloodFill",
               [&] { fill_.Fill(event.at.x, event.at.y, pens_.Of(event.button), full_cell); });
  with_.views.PictureChanged();
  return PressResult::kHandled;
}

}  // namespace kelvo::editing
