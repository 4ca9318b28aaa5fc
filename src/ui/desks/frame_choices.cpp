#include "ui/desks/frame_choices.h"

#include "model/palette.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

QStringList ColourCaptions() {
  QStringList captions;
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    captions << ToQt(model::ColourName(*model::C64Colour::FromNumber(number)));
  }
  return captions;
}

}  // namespace

FrameChoices::FrameChoices(const Menus& menus, frmZoom* zoom, QObject* parent)
    : QObject(parent),
      background_(new ChoiceMenu(menus.background, ColourCaptions())),
      grid_(new ChoiceMenu(menus.grid, ColourCaptions())),
      border_(new ChoiceMenu(menus.border, {"Flash", "White", "None"})),
      scale_(new ChoiceMenu(menus.scale, {"&1:1", "&2:1", "&3:1"})) {
  border_->Check(static_cast<int>(model::ZoomBorder::kNone));
  connect(background_, &ChoiceMenu::Chosen, this, &FrameChoices::BackgroundChosen);
  connect(grid_, &ChoiceMenu::Chosen, this, &FrameChoices::GridChosen);
  connect(border_, &ChoiceMenu::Chosen, zoom,
          [zoom](int index) { zoom->SetBorder(static_cast<model::ZoomBorder>(index)); });
  connect(scale_, &ChoiceMenu::Chosen, this, [this](int index) { emit ScaleChosen(index + 1); });
}

void FrameChoices::Refresh(model::C64Colour background, const frmZoom& zoom, const frmBMPView& full_view) {
  background_->Check(background.Number());
  grid_->Check(zoom.GridColor().Number());
  scale_->Check(full_view.Scale() - 1);
}

}  // namespace kelvo::ui
