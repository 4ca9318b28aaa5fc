// The menus of choices that belong to the main window itself: background, zoom grid, zoom border, full view scale.
#pragma once

#include <QMenu>
#include <QObject>

#include "model/c64_colour.h"
#include "ui/widgets/choice_menu.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

class FrameChoices : public QObject {
  Q_OBJECT

 public:
  struct Menus {
    QMenu *background, *grid, *border, *scale;
  };

  // Fills the menus. The border is chosen for `zoom` here; what the others choose is told.
  FrameChoices(const Menus& menus, frmZoom* zoom, QObject* parent);

  // Checks what is shown now.
  void Refresh(model::C64Colour background, const frmZoom& zoom, const frmBMPView& full_view);

 signals:
  void BackgroundChosen(int number);  // 0..15
  void GridChosen(int number);        // 0..15
  void ScaleChosen(int scale);        // 1..3

 private:
  ChoiceMenu *background_, *grid_, *border_, *scale_;
};

}  // namespace kelvo::ui
