#include "editing/fill_tool.h"

#include "editing/preferences.h"

namespace kelvo::editing {

PressResult FillTool::Press(const PointerEvent& event) {
  const app::WaitScope wait(ports_.pointer);
  undo_.SaveUndoData("Undo fill");
  const FullCellInFill full_cell = app::IsOn(ports_.settings, kReplaceLeastUsedColWhenFilling)
                                       ? FullCellInFill::kReplaceLeastUsed
                                       : FullCellInFill::kKeep;
  app::Guarded(ports_.log, "MDIFormMenu_FloodFill",
               [&] { fill_.Fill(event.at.x, event.at.y, pens_.Of(event.button), full_cell); });
  ports_.views.PictureChanged();
  return PressResult::kHandled;
}

}  // namespace kelvo::editing
