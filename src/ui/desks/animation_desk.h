// Connects animation with its windows: the frame window, the full view while it plays, the onion skin in the zoom
// window.
#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <optional>

#include "anim/anim_mode.h"
#include "anim/frame_navigation.h"
#include "anim/frame_player.h"
#include "ui/desks/window_desk.h"
#include "ui/windows/frm_anim.h"
#include "ui/windows/frm_bmp_view.h"
#include "ui/windows/frm_player.h"
#include "ui/windows/frm_zoom.h"

namespace kelvo::ui {

class AnimationDesk : public QObject, private anim::AnimDisplay {
  Q_OBJECT

 public:
  AnimationDesk(const files::PictureSurroundings& with, QMainWindow& frame, WindowDesk& windows, frmBMPView& full_view,
                frmZoom& zoom);

  anim::AnimMode& Mode() { return mode_; }
  const anim::AnimMode& Mode() const { return mode_; }
  void ShowProperties();
  // Null while the mode is off.
  QWidget* FrameWindow() const { return frame_window_; }
  // Closes the frame window, if there is one; its place is kept.
  void UnloadFrameWindow() override;
  // The current file, or what is in it, may be another one now.
  void FileChanged();

  // Goes to a frame, or changes the frames; the word that comes of it is told. What plays stops.
  void GoTo(int number);
  void Change(const std::function<std::string()>& change);
  anim::FrameNavigation& Navigation() { return navigation_; }

  // Cells of a frame that look otherwise than in the frame before are tinted in the zoom window; off at first.
  bool TintsChangedCells() const { return tints_changes_; }
  void ToggleChangedCells();

  // The settings say otherwise than before what shines through, or how frames play.
  void ShowOnionSkin();
  void PlayingChanged();

 signals:
  void FrameShown();  // another file is the current one, or frames are others
  void CheckMarkChanged();
  void StatusChanged(const QString& text);  // "ANIM=ON", "ANIM=OFF"
  void KeyReleased(QKeyEvent* event);       // in the frame window, which has no use for it
  void Word(const QString& word);           // for the status bar

 private:
  void ShowCheckMark(bool on) override;
  void ShowStatus(std::string_view text) override;
  void ShowFrameWindow() override;

  void MakeFrameWindow();
  void Move(const std::function<std::string()>& move);
  void ShowFrame();
  void ShowChangedCells();
  void ShowPlayWindow();
  void ShowTurn(const model::PictureImage& picture);
  void TogglePlay();
  void StartPlay();
  anim::FrameTimes Times();
  void StopPlay();
  void PlayTurn();

  files::PictureSurroundings with_;
  QMainWindow& frame_;
  WindowDesk& windows_;
  frmBMPView& full_view_;
  frmZoom& zoom_;
  anim::AnimMode mode_;
  anim::FrameNavigation navigation_;
  frmAnim* frame_window_ = nullptr;
  QPointer<frmPlayer> play_window_;  // it deletes itself when it closes
  bool tints_changes_ = false;
  bool is_moving_ = false;  // from frame to frame: the files that are opened and saved are those of the move

  std::optional<anim::FramePlayer> player_;
  QElapsedTimer playing_since_;
  QTimer turn_;
};

}  // namespace kelvo::ui
