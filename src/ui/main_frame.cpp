#include "ui/main_frame.h"

#include <QMdiArea>
#include <QStatusBar>
#include <QTimer>

#include "app/path_text.h"
#include "files/recovery_copy.h"
#include "ui/desks/animation_choices.h"
#include "ui/desks/animation_desk.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/called_windows.h"
#include "ui/desks/cell_use_desk.h"
#include "ui/desks/command_desk.h"
#include "ui/desks/export_desk.h"
#include "ui/desks/frame_choices.h"
#include "ui/desks/frame_strip_desk.h"
#include "ui/desks/history_desk.h"
#include "ui/desks/import_desk.h"
#include "ui/desks/painting_desk.h"
#include "ui/desks/palette_desk.h"
#include "ui/desks/picture_windows.h"
#include "ui/desks/recent_menu.h"
#include "ui/desks/recovery_desk.h"
#include "ui/desks/release_desk.h"
#include "ui/desks/window_desk.h"
#include "ui/menu_table.h"
#include "ui/ports/frame_ports.h"
#include "ui/ports/qt_text.h"
#include "ui/step_keys.h"
#include "ui/windows/frm_command.h"
#include "ui/windows/frm_frames.h"
#include "ui/windows/frm_history.h"
#include "ui/windows/frm_what_if.h"
#include "ui/windows/preferences.h"

namespace kelvo::ui {
namespace {

constexpr int kTimerMilliseconds = 100;

model::C64Colour ColourNumber(int number) {
  return model::C64Colour::FromNumber(number).value_or(model::C64Colour());
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
      strip_(new frmFrames(settings, this)),
      Toolbar1_(new PaintToolBar(this)),
      menu_(*this),
      panels_(new StatusPanels(statusBar())),
      choices_(new FrameChoices(
          {menu_.Menu(kBackgroundMenu), menu_.Menu(kGridMenu), menu_.Menu(kBorderMenu), menu_.Menu(kFullViewMenu)},
          zoom_, this)),
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
      animation_choices_(std::make_unique<AnimationChoices>(
          AnimationChoices::Menus{menu_.Menu(kPlayMenu), menu_.Menu(kOnionFramesMenu), menu_.Menu(kOnionStrengthMenu)},
          settings, *animation_)),
      frame_strip_(std::make_unique<FrameStripDesk>(PictureSurroundings(), *animation_, *strip_)),
      builds_(std::make_unique<BuildDesk>(PictureSurroundings(), *panels_, ports_->tools, this)),
      recovery_(std::make_unique<RecoveryDesk>(PictureSurroundings(), slot_)),
      history_(std::make_unique<HistoryDesk>(PictureSurroundings(), *desk_, StepsFile(folders_, slot_))),
      palette_(std::make_unique<PaletteDesk>(Surroundings(), menu_.Menu(kPaletteMenu), this)),
      exports_(std::make_unique<ExportDesk>(PictureSurroundings(), *palette_, this)),
      imports_(std::make_unique<ImportDesk>(PictureSurroundings(), *desk_, *panels_, ports_->pointer, this)),
      releases_(std::make_unique<ReleaseDesk>(PictureSurroundings(), *panels_, *builds_, *palette_, this)),
      commands_(std::make_unique<CommandDesk>(PictureSurroundings(), *animation_, *imports_)),
      called_(std::make_unique<CalledWindows>(PictureSurroundings(), *full_view_, ports_->tools, this)) {
  setObjectName("MDIFormMenu");
  setAcceptDrops(true);
  addToolBar(Toolbar1_);
  MakeChildren();
  ShowRecentFiles(menu_.Menu(kRecentMenu), files_);
  menu_.Menu(kToolsMenu)->addActions(Toolbar1_->Tools());
  ConnectChildren();
  ConnectChoices();
  ConnectDesk();
  ConnectAnimation();
  ConnectBuilds();
  ConnectHistory();
  ConnectPalette();
  ConnectWarnings();
  Timer1_->setObjectName("Timer1");
  connect(Timer1_, &QTimer::timeout, this, &MainFrame::Timer1_Timer);
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

void MainFrame::FilesMoved(const files::WhereNow& now) {
  history_->FilesMoved(now);
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
  windows_->Add(ChildWindowId::kFrames, strip_);
}

void MainFrame::ArrangeWindows() {
  windows_->Arrange(animation_->FrameWindow());
}

void MainFrame::ShowBuilding() {
  panels_->SetBuilding(builds_->IsBuilding());
  RefreshMenus();
}

void MainFrame::ProcessCommand(const QString& line) {
  commands_->Process(line);
  RefreshMenus();
}

void MainFrame::RepeatLastCommand() {
  commands_->RepeatLast();
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
  ShowStepKeys(menu_, settings_);
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
  desk_->ShowColours();
  views_->PictureChanged();
  RefreshMenus();
}

void MainFrame::SetGridColor(int number) {
  zoom_->SetGridColor(ColourNumber(number));
  RefreshMenus();
}

void MainFrame::ShowFile(const files::CurrentFile& file) {
  setWindowTitle(ToQt(files::WindowTitle(file)));
  panels_->Show(StatusPanel::kFile, ToQt(files::StatusName(file)));
  animation_->FileChanged();
  ports_->file_watch.Follow(QtFromPath(file.CurrentFilePath));
  RefreshMenus();
}

void MainFrame::ChangePreferences() {
  ShowPreferences(settings_, this);
  ShowStepKeys(menu_, settings_);
}

void MainFrame::ToggleSetting(const app::Setting& setting) {
  settings_.Write(setting, IsOn(setting) ? "0" : "1");
}

bool MainFrame::IsOn(const app::Setting& setting) const {
  return app::IsOn(settings_, setting);
}

void MainFrame::ShowWhatIf() {
  frmWhatIf dialog(document_.picture, this);
  connect(&dialog, &frmWhatIf::Tried, this, &MainFrame::SetBackgroundColour);
  dialog.exec();
}

void MainFrame::RefreshMenus() {
  choices_->Refresh(document_.picture.BackgroundColour, *zoom_, *full_view_);
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

void MainFrame::StopTools() {
  builds_->LeaveAll();
  called_->StopTools();
}

void MainFrame::EndSuddenly() {
  recovery_->KeepNow();
  StopTools();
  ports_->tools.EndNow();
}

}  // namespace kelvo::ui
