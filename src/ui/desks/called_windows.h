// The windows that are opened when they are called for, over the main window.
#pragma once

#include <QWidget>

#include "files/picture_files.h"
#include "ui/ports/qt_tool_runner.h"
#include "ui/windows/frm_bmp2sprite_main.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_codenet_gui.h"

namespace kelvo::ui {

class CalledWindows {
 public:
  // All of it outlives the desk; `window` is what the windows belong to.
  CalledWindows(const files::PictureSurroundings& with, const frmBMPView& full_view, QtToolRunner& tools,
                QWidget* window)
      : with_(with), full_view_(full_view), tools_(tools), window_(window) {}

  void ShowAbout();
  void mnuFullscreenView_Click();
  void SaveScreenshot();
  void ShowSpriteConverter();
  void ShowCodenetGui();
  // Ends a transfer of the Codenet window.
  void StopTools();

 private:
  files::PictureSurroundings with_;
  const frmBMPView& full_view_;
  QtToolRunner& tools_;
  QWidget* window_;
  frmBMP2SpriteMain* sprite_converter_ = nullptr;  // made when it is first asked for
  frmCodenetGUI* codenet_gui_ = nullptr;           // likewise
};

}  // namespace kelvo::ui
