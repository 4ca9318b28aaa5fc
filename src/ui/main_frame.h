// The main window: it holds the child windows and the menus, and turns what the user does into calls.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <array>

#include "app/clock.h"
#include "app/error_log.h"
#include "app/program_folders.h"
#include "app/settings_store.h"
#include "files/picture_files.h"
#include "ui/child_window.h"
#include "ui/choice_menu.h"
#include "ui/frm_bmp_view.h"
#include "ui/frm_zoom.h"
#include "ui/main_menu.h"
#include "ui/picture_windows.h"
#include "ui/prompt_lines.h"
#include "ui/qt_file_dialogs.h"
#include "ui/qt_messages.h"
#include "ui/status_panels.h"
#include "ui/wait_cursor.h"

class QMdiArea;

namespace kelvo::ui {

enum class ChildWindowId { kFullView, kZoom };
inline constexpr std::size_t kChildWindows = 2;

class MainFrame : public QMainWindow, private files::FileDisplay {
  Q_OBJECT

 public:
  // All three outlive the window.
  MainFrame(const app::ProgramFolders& folders, app::SettingsStore& settings, const app::Clock& clock);

  // What happens once, before the window is first shown: settings, folders, timer, texts.
  void StartUp();

  files::PictureFiles& Files() { return files_; }
  const files::Document& Document() const { return document_; }
  bool HasFile() const { return document_.file.HasFile(); }

  const frmZoom& Zoom() const { return *zoom_; }
  void SetMagnification(int magnification);
  void SetBackgroundColour(int number);  // 0..15
  void SetGridColor(int number);         // 0..15

  void ToggleWindow(ChildWindowId id);
  bool IsWindowShown(ChildWindowId id) const;

  const app::ErrorLog& Log() const { return log_; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void ShowFile(const files::CurrentFile& file) override;
  ChildWindow* AddChild(ChildWindowId id, QWidget* form, QPoint place);
  void MakeChoiceMenus();
  void MakeRecentMenu();
  void RefreshMenus();
  void Timer1_Timer();

  const app::ProgramFolders& folders_;
  app::SettingsStore& settings_;
  app::ErrorLog log_;
  files::Document document_;

  QMdiArea* area_;
  frmBMPView* full_view_;
  frmZoom* zoom_;
  std::array<ChildWindow*, kChildWindows> children_{};
  MainMenu menu_;
  ChoiceMenu* background_menu_ = nullptr;
  ChoiceMenu* grid_menu_ = nullptr;
  ChoiceMenu* border_menu_ = nullptr;
  StatusPanels panels_;
  QTimer* Timer1_;

  QtMessages messages_;
  QtFileDialogs dialogs_;
  WaitCursor pointer_;
  PromptLines prompt_;
  PictureWindows views_;
  files::PictureFiles files_;
};

}  // namespace kelvo::ui
