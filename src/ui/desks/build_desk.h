// Starts builds, one at a time, and tells how they go.
#pragma once

#include <QObject>
#include <functional>

#include "c64out/build_compo_pic.h"
#include "files/picture_files.h"
#include "ui/ports/qt_tool_runner.h"

namespace kelvo::ui {

class BuildDesk : public QObject {
  Q_OBJECT

 public:
  BuildDesk(const files::PictureSurroundings& with, app::StatusLine& status, QtToolRunner& runner, QWidget* window);

  // Passed over while a build or a transfer is at work. A picture that has no file is saved under a name first. While
  // the emulator is waited for another build may begin: it is left running then.
  void BuildCompoPic(const c64out::CompoPicChoice& choice);

  using Build = std::function<c64out::BuildResult(const c64out::BuildSurroundings&)>;
  // The same for what `ask` gives; null is no build.
  void Start(const std::function<Build()>& ask);

  // Ends a build at work. The emulator is not a part of it.
  void Stop();
  // The program ends: nothing is waited for any more.
  void LeaveAll();
  bool IsBuilding() const { return is_running_ && !runner_.IsShowing(); }
  // Whether a build may begin.
  bool IsFree() const { return !IsBuilding() && !runner_.IsBusy(); }

  // At start: looks where the settings say that VICE is, and tells when it is not there.
  void LookForVice();
  bool IsViceReady() const { return is_vice_ready_; }

  void ShowViceSettings();
  void ShowCodenetSettings();

 signals:
  // What can be chosen may have changed.
  void StateChanged();
  // Lines in the prompt say why.
  void Failed();

 private:
  void Run(const Build& build);
  c64out::BuildResult BuildAlone(const Build& build);
  void TellEnd(const c64out::BuildResult& result);
  c64out::BuildSurroundings ForBuilds() const;

  files::PictureSurroundings with_;
  app::StatusLine& status_;
  QWidget* window_;
  QtToolRunner& runner_;
  bool is_running_ = false, is_vice_ready_ = false;
  std::function<Build()> next_;  // chosen while the emulator was waited for
};

}  // namespace kelvo::ui
