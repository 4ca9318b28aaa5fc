// The main window: it holds the child windows and the menus, and turns what the user does into calls.
#pragma once

#include <QMainWindow>
#include <memory>

#include "app/error_log.h"
#include "app/program_folders.h"
#include "files/picture_files.h"
#include "ui/main_menu.h"
#include "ui/ports/program_slot.h"
#include "ui/widgets/prompt_lines.h"
#include "ui/widgets/status_panels.h"

namespace kelvo::ui {

class AnimationChoices;
class AnimationDesk;
class BuildDesk;
class CalledWindows;
class CellUseDesk;
class CommandDesk;
class ExportDesk;
class FrameChoices;
class FrameStripDesk;
class HistoryDesk;
class ImportDesk;
class PaletteDesk;
class PaintingDesk;
class PaintToolBar;
class PictureWindows;
class RecoveryDesk;
class ReleaseDesk;
class frmBMPView;
class frmCharData;
class frmColors;
class frmCommand;
class frmFrames;
class frmHistory;
class frmPens;
class frmZoom;
class WindowDesk;
struct FramePorts;

class MainFrame : public QMainWindow, private files::FileDisplay {
  Q_OBJECT

 public:
  // The settings and the clock outlive the window.
  MainFrame(const app::ProgramFolders& folders, app::SettingsStore& settings, const app::Clock& clock);
  ~MainFrame() override;

  // What happens once, before the window is first shown: settings, folders, timer, texts.
  void StartUp();

  // Offers unsaved work that an earlier run left behind; true when the user took it up.
  bool OfferRecovery();
  // What has time until the window is there: says what cannot be written, and removes backups that nobody would miss.
  void LookAtFolders();
  // The program has to end without asking: unsaved work and tools are seen to.
  void EndSuddenly();

  files::PictureFiles& Files() { return files_; }
  const files::Document& Document() const { return document_; }
  bool HasFile() const { return document_.file.HasFile(); }

  const frmZoom& Zoom() const { return *zoom_; }
  PaintingDesk& Desk() { return *desk_; }
  const PaintingDesk& Desk() const { return *desk_; }
  void SetMagnification(int magnification);
  void SetBackgroundColour(int number);  // 0..15
  void SetGridColor(int number);         // 0..15

  HistoryDesk& History() { return *history_; }
  const HistoryDesk& History() const { return *history_; }
  ExportDesk& Exports() { return *exports_; }
  ImportDesk& Imports() { return *imports_; }
  void ToggleSetting(const app::Setting& setting);
  bool IsOn(const app::Setting& setting) const;

  void ChangePreferences();
  void ShowWhatIf();
  void ArrangeWindows();
  CalledWindows& Called() { return *called_; }

  CellUseDesk& CellUse() { return *cell_use_; }
  const CellUseDesk& CellUse() const { return *cell_use_; }
  BuildDesk& Builds() { return *builds_; }
  const BuildDesk& Builds() const { return *builds_; }
  AnimationDesk& Animation() { return *animation_; }
  const AnimationDesk& Animation() const { return *animation_; }
  ReleaseDesk& Releases() { return *releases_; }
  void ProcessCommand(const QString& line);
  void RepeatLastCommand();
  const CommandDesk& Commands() const { return *commands_; }

  WindowDesk& Windows() { return *windows_; }
  const WindowDesk& Windows() const { return *windows_; }
  const frmBMPView& FullView() const { return *full_view_; }

  const app::ErrorLog& Log() const { return log_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  app::Surroundings Surroundings();
  files::PictureSurroundings PictureSurroundings();
  void ShowFile(const files::CurrentFile& file) override;
  void PictureReplaced() override;
  void PictureSaved() override;
  void FilesMoved(const files::WhereNow& now) override;
  void MakeChildren();
  void ConnectChildren();
  void ConnectChoices();
  void ConnectDesk();
  void ConnectAnimation();
  void ConnectBuilds();
  void ConnectHistory();
  void ConnectPalette();
  void ConnectWarnings();
  void ShowBuilding();
  void StopTools();
  void ShowPaintingState();
  void RefreshMenus();
  void ShowZoom();
  void Timer1_Timer();

  ProgramSlot slot_;
  app::ProgramFolders folders_;  // with this program's number
  app::SettingsStore& settings_;
  const app::Clock& clock_;
  app::ErrorLog log_;
  files::Document document_;

  PromptLines prompt_;

  frmBMPView* full_view_;
  frmColors* colors_;
  frmCharData* char_data_;
  frmZoom* zoom_;
  frmCommand* command_;
  frmPens* pens_;
  frmHistory* steps_ = nullptr;
  frmFrames* strip_;
  PaintToolBar* Toolbar1_;
  MainMenu menu_;
  StatusPanels* panels_;
  FrameChoices* choices_;
  QTimer* Timer1_;

  std::unique_ptr<WindowDesk> windows_;
  std::unique_ptr<FramePorts> ports_;
  std::unique_ptr<PictureWindows> views_;
  files::PictureFiles files_;
  std::unique_ptr<PaintingDesk> desk_;
  std::unique_ptr<CellUseDesk> cell_use_;
  std::unique_ptr<AnimationDesk> animation_;
  std::unique_ptr<AnimationChoices> animation_choices_;
  std::unique_ptr<FrameStripDesk> frame_strip_;
  std::unique_ptr<BuildDesk> builds_;
  std::unique_ptr<RecoveryDesk> recovery_;
  std::unique_ptr<HistoryDesk> history_;
  std::unique_ptr<PaletteDesk> palette_;
  std::unique_ptr<ExportDesk> exports_;
  std::unique_ptr<ImportDesk> imports_;
  std::unique_ptr<ReleaseDesk> releases_;
  std::unique_ptr<CommandDesk> commands_;
  std::unique_ptr<CalledWindows> called_;
};

}  // namespace kelvo::ui
