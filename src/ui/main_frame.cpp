#include "ui/main_frame.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>

#include "app/path_text.h"
#include "command/process_command.h"
#include "editing/preferences.h"
#include "files/backups.h"
#include "files/recovery_copy.h"
#include "model/palette.h"
#include "ui/desks/animation_desk.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/cell_use_desk.h"
#include "ui/desks/export_desk.h"
#include "ui/desks/history_desk.h"
#include "ui/desks/painting_desk.h"
#include "ui/desks/palette_desk.h"
#include "ui/desks/picture_windows.h"
#include "ui/desks/recovery_desk.h"
#include "ui/desks/window_desk.h"
#include "ui/menu_table.h"
#include "ui/ports/frame_ports.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/choice_menu.h"
#include "ui/widgets/image_drag.h"
#include "ui/widgets/settings_dialog.h"
#include "ui/windows/frm_about.h"
#include "ui/windows/frm_bmp2sprite_main.h"
#include "ui/windows/frm_codenet_gui.h"
#include "ui/windows/frm_command.h"
#include "ui/windows/frm_fullscreen.h"
#include "ui/windows/frm_history.h"
#include "ui/windows/frm_what_if.h"
#include "ui/windows/screenshot.h"

namespace kelvo::ui {
namespace {

constexpr int kTimerMilliseconds = 100;
constexpr app::Setting kCtrlZStepsBack{"Preferences", "CtrlZStepsBack", "0"};

model::C64Colour ColourNumber(int number) {
  return model::C64Colour::FromNumber(number).value_or(model::C64Colour());
}

QStringList ColourCaptions() {
  QStringList captions;
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    captions << ToQt(model::ColourName(ColourNumber(number)));
  }
  return captions;
}

std::filesystem::path StepsFile(const app::ProgramFolders& folders, const ProgramSlot& slot) {
  const auto number = slot.Number();
  return number ? files::RecoveryFiles(folders.Backup(), *number).steps : std::filesystem::path();
}

// The folders as they are when the program first locks something there.
const app::ProgramFolders& MadeFolders(const app::ProgramFolders& folders) {
  folders.Create();
  return folders;
}

}  // namespace

MainFrame::MainFrame(const app::ProgramFolders& folders, app::SettingsStore& settings, const app::Clock& clock)
    : slot_(MadeFolders(folders).System()),
      folders_(folders.Root(), slot_.Number().value_or(kMostPrograms + 1)),
      settings_(settings),
      clock_(clock),
      log_(folders_.ErrorLogFile(), clock),
      full_view_(new frmBMPView(document_.picture, this)),
      colors_(new frmColors(this)),
      char_data_(new frmCharData(document_.picture, this)),
      zoom_(new frmZoom(document_.picture, this)),
      command_(new frmCommand(prompt_, this)),
      pens_(new frmPens(this)),
      Toolbar1_(new PaintToolBar(this)),
      menu_(*this),
      panels_(new StatusPanels(statusBar())),
      Timer1_(new QTimer(this)),
      windows_(std::make_unique<WindowDesk>(*this, *new QMdiArea(this), *zoom_, *full_view_, *panels_, settings)),
      ports_(std::make_unique<FramePorts>(this)),
      views_(std::make_unique<PictureWindows>(*full_view_, *zoom_)),
      files_(document_, {Surroundings(), ports_->pointer, ports_->dialogs, *this, *views_, *panels_}),
      desk_(std::make_unique<PaintingDesk>(
          document_,
          editing::PaintingPorts{*views_, settings, ports_->messages, *panels_, ports_->events, ports_->pointer, log_},
          PaintingWindows{*full_view_, *zoom_, *colors_, *pens_, *char_data_, *Toolbar1_})),
      cell_use_(std::make_unique<CellUseDesk>(document_, *full_view_, *zoom_, *colors_)),
      animation_(std::make_unique<AnimationDesk>(PictureSurroundings(), *this, *windows_, *full_view_, *zoom_)),
      builds_(std::make_unique<BuildDesk>(PictureSurroundings(), *panels_, ports_->tools, this)),
      recovery_(std::make_unique<RecoveryDesk>(PictureSurroundings(), slot_)),
      history_(std::make_unique<HistoryDesk>(PictureSurroundings(), *desk_, StepsFile(folders_, slot_))),
      palette_(std::make_unique<PaletteDesk>(Surroundings(), menu_.Menu(kPaletteMenu), this)),
      exports_(std::make_unique<ExportDesk>(PictureSurroundings(), *palette_, this)) {
  setObjectName("MDIFormMenu");
  setAcceptDrops(true);
  addToolBar(Toolbar1_);
  MakeChildren();
  MakeChoiceMenus();
  MakeRecentMenu();
  menu_.Menu(kToolsMenu)->addActions(Toolbar1_->Tools());
  ConnectDesk();
  ConnectAnimation();
  ConnectBuilds();
  ConnectHistory();
  ConnectPalette();
  Timer1_->setObjectName("Timer1");
  connect(Timer1_, &QTimer::timeout, this, &MainFrame::Timer1_Timer);
  connect(recovery_.get(), &RecoveryDesk::Word, this, [this](const QString& word) { panels_->Warn(FromQt(word)); });
  connect(&ports_->file_watch, &FileWatch::Touched, this, [this] {
    if (files_.IsChangedElsewhere()) panels_->Warn("The file was changed elsewhere: Reload?");
  });
}

MainFrame::~MainFrame() = default;

app::Surroundings MainFrame::Surroundings() {
  return {folders_, settings_, clock_, log_, ports_->messages, prompt_};
}

files::PictureSurroundings MainFrame::PictureSurroundings() {
  return {Surroundings(), document_, files_};
}

bool MainFrame::OfferRecovery() {
  return recovery_->Offer();
}

void MainFrame::PictureReplaced() {
  history_->PictureReplaced();
  desk_->PictureReplaced();
}

void MainFrame::PictureSaved() {
  history_->PictureSaved();
}

void MainFrame::MakeChildren() {
  steps_ = new frmHistory(history_->Steps(), this);
  windows_->Add(ChildWindowId::kFullView, full_view_);
  windows_->Add(ChildWindowId::kColors, colors_);
  windows_->Add(ChildWindowId::kPens, pens_);
  windows_->Add(ChildWindowId::kCharData, char_data_);
  windows_->Add(ChildWindowId::kPrompt, command_);
  windows_->Add(ChildWindowId::kZoom, zoom_);
  windows_->Add(ChildWindowId::kHistory, steps_);
  connect(windows_.get(), &WindowDesk::Changed, this, &MainFrame::RefreshMenus);
  connect(full_view_, &frmBMPView::ZoomAreaChosen, zoom_, &frmZoom::CentreOn);
  connect(zoom_, &frmZoom::AreaChanged, this, [this] { full_view_->ShowZoomArea(zoom_->Area()); });
  connect(zoom_, &frmZoom::MagnificationChanged, this, &MainFrame::ShowZoom);
  connect(command_, &frmCommand::CommandSubmitted, this, &MainFrame::ProcessCommand);
  connect(command_, &frmCommand::FocusGivenBack, windows_.get(), &WindowDesk::GiveFocusToPicture);
}

void MainFrame::ArrangeWindows() {
  windows_->Arrange(animation_->FrameWindow());
}

void MainFrame::MakeChoiceMenus() {
  background_menu_ = new ChoiceMenu(menu_.Menu(kBackgroundMenu), ColourCaptions());
  grid_menu_ = new ChoiceMenu(menu_.Menu(kGridMenu), ColourCaptions());
  border_menu_ = new ChoiceMenu(menu_.Menu(kBorderMenu), {"Flash", "White", "None"});
  connect(background_menu_, &ChoiceMenu::Chosen, this, &MainFrame::SetBackgroundColour);
  connect(grid_menu_, &ChoiceMenu::Chosen, this, &MainFrame::SetGridColor);
  connect(border_menu_, &ChoiceMenu::Chosen, this,
          [this](int index) { zoom_->SetBorder(static_cast<model::ZoomBorder>(index)); });
  border_menu_->Check(static_cast<int>(model::ZoomBorder::kNone));
  scale_menu_ = new ChoiceMenu(menu_.Menu(kFullViewMenu), {"&1:1", "&2:1", "&3:1"});
  connect(scale_menu_, &ChoiceMenu::Chosen, this, [this](int index) { windows_->SetFullViewScale(index + 1); });
}

void MainFrame::MakeRecentMenu() {
  QMenu* menu = menu_.Menu(kRecentMenu);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    menu->clear();
    const auto paths = files_.RecentPaths();
    for (const std::filesystem::path& path : paths) {
      QAction* entry = menu->addAction(QtFromPath(path).replace('&', "&&"));
      entry->setObjectName(QString("mnuRecent_%1").arg(menu->actions().size() - 1));
      connect(entry, &QAction::triggered, this, [this, path] { files_.OpenRecent(path); });
    }
    if (paths.empty()) menu->addAction("<none>")->setEnabled(false);
  });
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
    for (QWidget* widget : findChildren<QWidget*>()) widget->update();
  });
}

void MainFrame::ShowBuilding() {
  panels_->SetBuilding(builds_->IsBuilding());
  RefreshMenus();
}

void MainFrame::ProcessCommand(const QString& line) {
  last_command_ = line;
  const command::AnimationSwitch animation{[this] {
                                             animation_->Mode().ToggleAnimMode();
                                             return animation_->Mode().IsAnimModeChecked();
                                           },
                                           [this](bool on) { animation_->Mode().SetAnimFlag(on); }};
  command::ProcessCommand(FromQt(line), PictureSurroundings(), animation);
  RefreshMenus();
}

void MainFrame::ShowPaintingState() {
  panels_->Show(StatusPanel::kTool, ToQt(desk_->Painting().Prompt()));
  const bool fills_blocks = desk_->Painting().ChosenTool() == editing::ToolId::kBlockFill;
  panels_->Show(StatusPanel::kBlockFill, fills_blocks ? "BF=ON" : "BF=OFF");
  menu_.Refresh();
}

void MainFrame::StartUp() {
  setWindowTitle(ToQt(files::WindowTitle(document_.file)));
  zoom_->SetMagnification(app::ReadNumber(settings_, kMagnification, 4, 8));
  SetGridColor(app::ReadNumber(settings_, kGridColor, 0, model::C64Colour::kCount - 1));
  Timer1_->start(kTimerMilliseconds);
  ShowFile(document_.file);
  ShowStepKeys();
  palette_->Restore();
  builds_->LookForVice();
  std::error_code ignored;
  std::filesystem::remove(folders_.Snapshot(), ignored);  // so that the first save makes no backup
  views_->PictureChanged();
  windows_->Begin();
  RefreshMenus();
}

void MainFrame::LookAtFolders() {
  if (const auto folder = folders_.FindReadOnly()) {
    ports_->messages.Warn("Kelvo cannot write to its folder " + app::TextFromPath(*folder) +
                          ".\nPictures can be painted and saved, but backups, rescue copies or builds fail.");
  }
  files_.ThinBackups();
}

void MainFrame::SetMagnification(int magnification) {
  zoom_->SetMagnification(magnification);
}

void MainFrame::SetBackgroundColour(int number) {
  views_->ActionBegins("Background color");
  document_.picture.BackgroundColour = ColourNumber(number);
  background_menu_->Check(number);
  desk_->ShowColours();
  views_->PictureChanged();
}

void MainFrame::SetGridColor(int number) {
  zoom_->SetGridColor(ColourNumber(number));
  grid_menu_->Check(number);
}

void MainFrame::ShowAbout() {
  frmAbout(this).exec();
}

void MainFrame::mnuFullscreenView_Click() {
  (new frmFullscreen(full_view_->Picture(), this))->showFullScreen();
}

void MainFrame::ShowSpriteConverter() {
  if (sprite_converter_ == nullptr) {
    sprite_converter_ = new frmBMP2SpriteMain(document_.picture, QtFromPath(files_.FolderForDialogs()), this);
  }
  sprite_converter_->show();
  sprite_converter_->raise();
}

void MainFrame::ShowCodenetGui() {
  if (codenet_gui_ == nullptr) {
    codenet_gui_ = new frmCodenetGUI(Surroundings(), ports_->tools, this);
  }
  codenet_gui_->show();
  codenet_gui_->raise();
}

void MainFrame::StopTools() {
  builds_->LeaveAll();
  if (codenet_gui_ != nullptr) codenet_gui_->Stop();
}

void MainFrame::SaveScreenshot() {
  const std::filesystem::path& path = document_.file.CurrentFilePath;
  const QString proposal = QtFromPath(path.empty() ? folders_.Gfx() / "unnamed" : path);
  app::Guarded(
      log_, "MDIFormMenu_mnuSaveJPG", [&] { mnuSaveJPG(full_view_->Picture(), proposal, this); },
      [this](const std::exception& error) { ports_->messages.Warn(error.what()); });
}

void MainFrame::ShowFile(const files::CurrentFile& file) {
  setWindowTitle(ToQt(files::WindowTitle(file)));
  panels_->Show(StatusPanel::kFile, ToQt(files::StatusName(file)));
  animation_->FileChanged();
  ports_->file_watch.Follow(QtFromPath(file.CurrentFilePath));
  RefreshMenus();
}

void MainFrame::ShowPreferences() {
  SettingsDialog dialog(settings_, "frmPreferences", "Preferences", this);
  dialog.AddCheckBox(editing::k4thColReplaces, "&4th char color replaces selected color");
  dialog.AddCheckBox(editing::kReplaceLeastUsedColWhenFilling, "&Replace least used color when filling");
  dialog.AddCheckBox(editing::kCloseCircles, "&Close circles where they run steeply");
  dialog.AddCheckBox(editing::kTellRefusalsInStatusBar, "&Tell refusals of full cells in the status bar");
  dialog.AddNumber(files::kKeepBackupsDays, files::kMostBackupDays, "Days that every &backup is kept:", "for ever",
                   "Of the days before those the last backup of each picture stays");
  dialog.AddCheckBox(kCtrlZStepsBack, "Ctrl+&Z steps back and Ctrl+Y forward");
  dialog.exec();
  ShowStepKeys();
}

// Who expects it walks through the steps by Ctrl+Z and Ctrl+Y; Undo has no key then.
void MainFrame::ShowStepKeys() {
  const bool by_ctrl_z = IsOn(kCtrlZStepsBack);
  menu_.SetKeys("mnuUndo", by_ctrl_z ? "" : "Ctrl+Z");
  menu_.SetKeys("mnuStepBack", by_ctrl_z ? "Ctrl+Z; Ctrl+Alt+Z" : "Ctrl+Alt+Z");
  menu_.SetKeys("mnuStepForward", by_ctrl_z ? "Ctrl+Y; Ctrl+Alt+Y" : "Ctrl+Alt+Y");
}

void MainFrame::ToggleSetting(const app::Setting& setting) {
  settings_.Write(setting, IsOn(setting) ? "0" : "1");
}

bool MainFrame::IsOn(const app::Setting& setting) const {
  return app::ReadNumber(settings_, setting, 0, 1) == 1;
}

void MainFrame::ShowWhatIf() {
  frmWhatIf dialog(document_.picture, this);
  connect(&dialog, &frmWhatIf::Tried, this, &MainFrame::SetBackgroundColour);
  dialog.exec();
}

void MainFrame::RefreshMenus() {
  background_menu_->Check(document_.picture.BackgroundColour.Number());
  scale_menu_->Check(full_view_->Scale() - 1);
  menu_.Refresh();
}

void MainFrame::ShowZoom() {
  panels_->Show(StatusPanel::kZoom, QString("Zoom %1:1").arg(zoom_->Area().Magnification()));
  RefreshMenus();
}

void MainFrame::Timer1_Timer() {
  panels_->ShowUnsaved(document_.HasUnsavedWork());
  desk_->Tick();
  history_->Settle();
  zoom_->TickBorder();
  recovery_->Tick();
}

void MainFrame::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && builds_->IsBuilding()) return builds_->Stop();
  if (event->key() == Qt::Key_Escape && windows_->IsInSideWindow(focusWidget())) {
    return windows_->GiveFocusToPicture();
  }
  const bool is_arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
  if (is_arrow && qobject_cast<QAbstractButton*>(focusWidget()) != nullptr) return;  // it led from button to button
  // Ctrl+R with Ctrl let go first is still Ctrl+R, not the pen of R.
  const Qt::KeyboardModifiers modifiers = event->modifiers() | ports_->keys.HeldAtPress(event->key());
  if (desk_->HandleKeyUp(event->key(), modifiers) || menu_.HandleKeyUp(event->key(), modifiers)) return;
  QMainWindow::keyReleaseEvent(event);
}

void MainFrame::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && !isActiveWindow()) desk_->LoseFocus();
  QMainWindow::changeEvent(event);
}

void MainFrame::dragEnterEvent(QDragEnterEvent* event) {
  const auto urls = event->mimeData()->urls();
  if (urls.size() == 1 && urls.first().isLocalFile()) event->acceptProposedAction();
}

void MainFrame::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  files_.OpenPicture(PathFromQt(event->mimeData()->urls().first().toLocalFile()));
}

void MainFrame::closeEvent(QCloseEvent* event) {
  if (!files_.MayClose()) return event->ignore();
  settings_.Write(kGridColor, std::to_string(zoom_->GridColor().Number()));
  settings_.Write(kMagnification, std::to_string(zoom_->Area().Magnification()));
  windows_->Keep();
  animation_->UnloadFrameWindow();
  StopTools();
  Timer1_->stop();  // a tick would keep the work that was given up
  recovery_->Remove();
  history_->RemoveFile();
  event->accept();
}

void MainFrame::EndSuddenly() {
  recovery_->KeepNow();
  StopTools();
  ports_->tools.EndNow();
}

}  // namespace kelvo::ui
