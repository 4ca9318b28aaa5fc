// The toolbar: the seven tools, and the cell in the copy buffer.
#pragma once

#include <QActionGroup>
#include <QToolBar>

#include "editing/tool_table.h"
#include "model/pixel_colour.h"
#include "model/surface.h"
#include "ui/widgets/surface_view.h"

namespace kelvo::ui {

class PaintToolBar : public QToolBar {
  Q_OBJECT

 public:
  explicit PaintToolBar(QWidget* parent);

  // The tools' actions, for a menu too.
  QList<QAction*> Tools() const { return tools_->actions(); }
  void ShowTool(editing::ToolId tool);
  void ShowCopy(const model::DetachedCell& cell, model::C64Colour background);

 signals:
  void ToolChosen(editing::ToolId tool);

 private:
  QActionGroup* tools_;
  model::Surface copy_;
  SurfaceView* picCopy_;
};

}  // namespace kelvo::ui
