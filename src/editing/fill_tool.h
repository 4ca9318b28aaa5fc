// Filling a region.
#pragma once

#include <string_view>

#include "app/error_log.h"
#include "app/settings_store.h"
#include "app/wait_pointer.h"
#include "editing/flood_fill.h"
#include "editing/tool.h"
#include "editing/undo_step.h"

namespace kelvo::editing {

class FillTool final : public Tool {
 public:
  struct Surroundings {
    const app::SettingsStore& settings;
    const app::ErrorLog& log;
    app::WaitPointer& pointer;
    model::PictureViews& views;
  };

  FillTool(FloodFill& fill, const Pens& pens, UndoStep& undo, const Surroundings& surroundings)
      : fill_(fill), pens_(pens), undo_(undo), with_(surroundings) {}

  std::string_view Prompt() const override { return "FILL"; }
  PressResult Press(const PointerEvent& event) override;

 private:
  FloodFill& fill_;
  const Pens& pens_;
  UndoStep& undo_;
  Surroundings with_;
};

}  // namespace kelvo::editing
