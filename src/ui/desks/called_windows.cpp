#include "ui/desks/called_windows.h"

#include "ui/ports/qt_text.h"
#include "ui/windows/frm_about.h"
#include "ui/windows/frm_fullscreen.h"
#include "ui/windows/screenshot.h"

namespace kelvo::ui {

void CalledWindows::ShowAbout() {
  frmAbout(window_).exec();
}

void CalledWindows::mnuFullscreenView_Click() {
  (new frmFullscreen(full_view_.Picture(), window_))->showFullScreen();
}

void CalledWindows::SaveScreenshot() {
  const std::filesystem::path& path = with_.document.file.CurrentFilePath;
  const QString proposal = QtFromPath(path.empty() ? with_.folders.Gfx() / "unnamed" : path);
  app::Guarded(
      with_.log, "MDIFormMenu_mnuSaveJPG", [&] { mnuSaveJPG(full_view_.Picture(), proposal, window_); },
      [this](const std::exception& error) { with_.messages.Warn(error.what()); });
}

void CalledWindows::ShowSpriteConverter() {
  if (sprite_converter_ == nullptr) {
    sprite_converter_ =
        new frmBMP2SpriteMain(with_.document.picture, QtFromPath(with_.files.FolderForDialogs()), window_);
  }
  sprite_converter_->show();
  sprite_converter_->raise();
}

void CalledWindows::ShowCodenetGui() {
  if (codenet_gui_ == nullptr) codenet_gui_ = new frmCodenetGUI(with_, tools_, window_);
  codenet_gui_->show();
  codenet_gui_->raise();
}

void CalledWindows::StopTools() {
  if (codenet_gui_ != nullptr) codenet_gui_->Stop();
}

}  // namespace kelvo::ui
