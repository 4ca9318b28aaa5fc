// What the parts of the main window tell each other.
#include <QKeyEvent>

#include "ui/desks/animation_desk.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/cell_use_desk.h"
#include "ui/desks/export_desk.h"
#include "ui/desks/frame_choices.h"
#include "ui/desks/frame_strip_desk.h"
#include "ui/desks/history_desk.h"
#include "ui/desks/painting_desk.h"
#include "ui/desks/palette_desk.h"
#include "ui/desks/picture_windows.h"
#include "ui/desks/recovery_desk.h"
#include "ui/desks/release_desk.h"
#include "ui/desks/window_desk.h"
#include "ui/main_frame.h"
#include "ui/ports/frame_ports.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/image_drag.h"
#include "ui/windows/frm_command.h"
#include "ui/windows/frm_history.h"

namespace kelvo::ui {

void MainFrame::ConnectChildren() {
  connect(windows_.get(), &WindowDesk::Changed, this, &MainFrame::RefreshMenus);
  connect(full_view_, &frmBMPView::ZoomAreaChosen, zoom_, &frmZoom::CentreOn);
  connect(zoom_, &frmZoom::AreaChanged, this, [this] { full_view_->ShowZoomArea(zoom_->Area()); });
  connect(zoom_, &frmZoom::MagnificationChanged, this, &MainFrame::ShowZoom);
  connect(command_, &frmCommand::CommandSubmitted, this, &MainFrame::ProcessCommand);
  connect(command_, &frmCommand::FocusGivenBack, windows_.get(), &WindowDesk::GiveFocusToPicture);
}

void MainFrame::ConnectChoices() {
  connect(choices_, &FrameChoices::BackgroundChosen, this, &MainFrame::SetBackgroundColour);
  connect(choices_, &FrameChoices::GridChosen, this, &MainFrame::SetGridColor);
  connect(choices_, &FrameChoices::ScaleChosen, windows_.get(), &WindowDesk::SetFullViewScale);
}

void MainFrame::ConnectDesk() {
  connect(desk_.get(), &PaintingDesk::StateChanged, this, &MainFrame::ShowPaintingState);
  connect(desk_.get(), &PaintingDesk::PointerAt, this,
          [this](const QString& text) { panels_->Show(StatusPanel::kPointer, text); });
  // It is emitted after each action too, at most once a display frame.
  connect(desk_.get(), &PaintingDesk::PointerAt, this, [this] { cell_use_->Refresh(); });
  connect(desk_.get(), &PaintingDesk::BackgroundChosen, this,
          [this](model::C64Colour colour) { SetBackgroundColour(colour.Number()); });
}

void MainFrame::ConnectAnimation() {
  connect(animation_.get(), &AnimationDesk::CheckMarkChanged, this, &MainFrame::RefreshMenus);
  connect(animation_.get(), &AnimationDesk::StatusChanged, this,
          [this](const QString& text) { panels_->Show(StatusPanel::kAnimation, text); });
  connect(releases_.get(), &ReleaseDesk::PlayingChanged, animation_.get(), &AnimationDesk::PlayingChanged);
  connect(animation_.get(), &AnimationDesk::Word, this, [this](const QString& word) { panels_->Tell(FromQt(word)); });
  connect(animation_.get(), &AnimationDesk::KeyReleased, this, [this](QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape || builds_->IsBuilding()) return keyReleaseEvent(event);
    activateWindow();
    windows_->GiveFocusToPicture();
  });
}

void MainFrame::ConnectBuilds() {
  connect(builds_.get(), &BuildDesk::StateChanged, this, &MainFrame::ShowBuilding);
  // The prompt is the build log: it comes forward when there is something to read in it. The keyboard stays where it
  // is.
  connect(builds_.get(), &BuildDesk::Failed, this, [this] { windows_->ShowBehind(ChildWindowId::kPrompt); });
}

void MainFrame::ConnectHistory() {
  views_->TellToo(*history_);
  connect(desk_.get(), &PaintingDesk::StateChanged, history_.get(), &HistoryDesk::Settle);
  connect(history_.get(), &HistoryDesk::StepsChanged, this, [this] {
    steps_->Refresh();
    menu_.Refresh();
  });
  connect(steps_, &frmHistory::StepChosen, history_.get(), &HistoryDesk::GoTo);
  connect(recovery_.get(), &RecoveryDesk::StepsFound, history_.get(), &HistoryDesk::TakeUp);
}

void MainFrame::ConnectPalette() {
  new ImageDrag(full_view_->findChild<QWidget*>("picStd"), [this] { return exports_->Image(); });
  connect(palette_.get(), &PaletteDesk::Changed, this, [this] {
    views_->PictureChanged();
    desk_->ShowColours();
    steps_->StartAfresh();
    frame_strip_->StartAfresh();
    for (QWidget* widget : findChildren<QWidget*>()) widget->update();
  });
}

void MainFrame::ConnectWarnings() {
  connect(recovery_.get(), &RecoveryDesk::Word, this, [this](const QString& word) { panels_->Warn(FromQt(word)); });
  connect(&ports_->file_watch, &FileWatch::Touched, this, [this] {
    if (files_.IsChangedElsewhere()) panels_->Warn("The file was changed elsewhere: Reload?");
  });
}

}  // namespace kelvo::ui
