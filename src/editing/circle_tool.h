// Circles from a centre and a point on the rim.
#pragma once

#include <optional>
#include <string_view>

#include "app/settings_store.h"
#include "editing/plotter.h"
#include "editing/tool.h"
#include "editing/undo_step.h"

namespace kelvo::editing {

// A press only records; the next tick draws, with the left pen.
class CircleTool final : public Tool {
 public:
  CircleTool(Plotter& plotter, const Pens& pens, UndoStep& undo, const app::SettingsStore& settings)
      : plotter_(plotter), pens_(pens), undo_(undo), settings_(settings) {}

  std::string_view Prompt() const override { return centre_ ? "SET RADIUS POINT" : "SET CENTER POINT"; }
  PressResult Press(const PointerEvent& event) override;
  bool Tick() override;
  bool Cancel() override;
  Points Preview(model::PixelPoint pointer) const override;

 private:
  void BeginAfresh();
  Points Outline(int radius) const;

  Plotter& plotter_;
  const Pens& pens_;
  UndoStep& undo_;
  const app::SettingsStore& settings_;
  std::optional<model::PixelPoint> centre_;
  std::optional<int> radius_;
};

}  // namespace kelvo::editing
