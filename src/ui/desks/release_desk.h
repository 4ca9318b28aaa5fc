// The ways in which an animation leaves Kelvo: as a C64 program, as a GIF, and as PNG images.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "anim/animation_frames.h"
#include "c64out/compo_pic_choice.h"
#include "files/picture_files.h"
#include "images/animation_export.h"
#include "ui/desks/build_desk.h"
#include "ui/desks/palette_desk.h"
#include "ui/windows/animation_export_dialog.h"

namespace kelvo::ui {

// All that goes wrong before something is made is told by a message box. The current frame is saved first when it has
// changed.
class ReleaseDesk : public QObject {
  Q_OBJECT

 public:
  // All of it outlives the desk; `window` is what dialogs belong to.
  ReleaseDesk(const files::PictureSurroundings& with, app::StatusLine& status, BuildDesk& builds,
              const PaletteDesk& palette, QWidget* window)
      : with_(with), status_(status), builds_(builds), palette_(palette), window_(window) {}

  // What is built is asked first.
  void Build(const c64out::CompoPicChoice& choice);
  void ExportGif();
  void ExportPngs();

 signals:
  // The settings say anew how animations are played.
  void PlayingChanged();

 private:
  BuildDesk::Build AskForBuild(const c64out::CompoPicChoice& choice);
  bool SaveCurrentFrame();
  anim::AnimationFrames Frames() const;
  images::AnimationLook Look(const AnimationExportDialog& dialog) const;
  bool MayReplace(const anim::AnimationFrames& frames, const std::filesystem::path& folder) const;
  void WriteGif(const anim::AnimationFrames& frames, const AnimationExportDialog& dialog,
                const std::filesystem::path& file);
  void WritePngs(const anim::AnimationFrames& frames, const images::AnimationLook& look,
                 const std::filesystem::path& folder);
  void Guarded(const std::function<void()>& work);

  files::PictureSurroundings with_;
  app::StatusLine& status_;
  BuildDesk& builds_;
  const PaletteDesk& palette_;
  QWidget* window_;
};

}  // namespace kelvo::ui
