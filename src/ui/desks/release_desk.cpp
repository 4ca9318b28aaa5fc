#include "ui/desks/release_desk.h"

#include <QFileDialog>
#include <memory>
#include <string>

#include "anim/frame_names.h"
#include "app/path_text.h"
#include "app/whole_file.h"
#include "c64out/build_animation.h"
#include "files/load_picture.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_text.h"
#include "ui/windows/background_work.h"
#include "ui/windows/release_dialog.h"

namespace kelvo::ui {

void ReleaseDesk::Guarded(const std::function<void()>& work) {
  app::Guarded(with_.log, "MDIFormMenu_Animation", work,
               [this](const std::exception& error) { with_.messages.Warn(error.what()); });
}

void ReleaseDesk::Build(const c64out::CompoPicChoice& choice) {
  builds_.Start([this, choice] { return AskForBuild(choice); });
}

BuildDesk::Build ReleaseDesk::AskForBuild(const c64out::CompoPicChoice& choice) {
  BuildDesk::Build build;
  Guarded([&] {
    if (!SaveCurrentFrame()) return;
    auto release = ReleaseDialog(Frames(), with_.settings, window_).Ask();
    if (!release) return status_.Tell("Build stopped");
    emit PlayingChanged();
    const auto shared = std::make_shared<const c64out::Release>(std::move(*release));
    build = [shared, choice](const c64out::BuildSurroundings& with) {
      return c64out::BuildAnimation(*shared, choice, with);
    };
  });
  return build;
}

// As going to another frame does.
bool ReleaseDesk::SaveCurrentFrame() {
  const anim::FrameNames names(anim::ReadAnimProperties(with_.settings));
  const files::Document& document = with_.document;
  if (!document.file.HasFile() || !names.NumberOfPath(document.file.CurrentFilePath)) return true;
  return !document.HasUnsavedWork() || with_.files.SaveChanges();
}

anim::AnimationFrames ReleaseDesk::Frames() const {
  return anim::FindFrames(anim::ReadAnimProperties(with_.settings));
}

images::AnimationLook ReleaseDesk::Look(const AnimationExportDialog& dialog) const {
  return {palette_.Shown(), dialog.Image().Size(), dialog.Image().Scale(), files::ReadingBy(with_.settings)};
}

void ReleaseDesk::ExportGif() {
  Guarded([this] {
    if (!SaveCurrentFrame()) return;
    const anim::AnimationFrames frames = Frames();
    AnimationExportDialog dialog("Export animation as GIF", window_);
    dialog.AddPlayback(with_.settings);
    if (dialog.exec() != QDialog::Accepted) return;
    dialog.Playback()->Keep(with_.settings);
    emit PlayingChanged();
    QFileDialog save(window_, "Export animation as GIF", StillThere(QtFromPath(frames.folder)), "*.gif");
    save.setAcceptMode(QFileDialog::AcceptSave);
    save.setDefaultSuffix("gif");
    save.selectFile(ToQt(frames.name));
    if (save.exec() != QDialog::Accepted || save.selectedFiles().isEmpty()) return;
    WriteGif(frames, dialog, PathFromQt(save.selectedFiles().first()));
  });
}

void ReleaseDesk::WriteGif(const anim::AnimationFrames& frames, const AnimationExportDialog& dialog,
                           const std::filesystem::path& file) {
  app::Bytes bytes;
  const int rate = dialog.Playback()->Rate();
  const anim::Playing playing = dialog.Playback()->Playing();
  const images::AnimationLook look = Look(dialog);
  if (!DoWatched(window_, "Writing the GIF",
                 [&](app::Progress& progress) { bytes = images::GifOf(frames, rate, playing, look, progress); })) {
    return status_.Tell("Export stopped");
  }
  app::WriteWholeFile(file, bytes);
  status_.Tell("Made " + app::TextFromPath(file) + ", " + std::to_string(bytes.size()) + " bytes");
}

void ReleaseDesk::ExportPngs() {
  Guarded([this] {
    if (!SaveCurrentFrame()) return;
    const anim::AnimationFrames frames = Frames();
    AnimationExportDialog dialog("Export animation as PNG images", window_);
    if (dialog.exec() != QDialog::Accepted) return;
    QFileDialog choose(window_, "Folder for the PNG images", StillThere(QtFromPath(frames.folder)));
    choose.setFileMode(QFileDialog::Directory);
    choose.setOption(QFileDialog::ShowDirsOnly);
    if (choose.exec() != QDialog::Accepted || choose.selectedFiles().isEmpty()) return;
    const std::filesystem::path folder = PathFromQt(choose.selectedFiles().first());
    if (MayReplace(frames, folder)) WritePngs(frames, Look(dialog), folder);
  });
}

bool ReleaseDesk::MayReplace(const anim::AnimationFrames& frames, const std::filesystem::path& folder) const {
  int there = 0;
  for (const anim::AnimationFrame& frame : frames.frames) there += exists(images::PngFileOf(frame, folder)) ? 1 : 0;
  return there == 0 || with_.messages.Ask("Images that are there already: " + std::to_string(there) + " of " +
                                          std::to_string(frames.frames.size()) + ".\r\nDo you want to replace them?");
}

void ReleaseDesk::WritePngs(const anim::AnimationFrames& frames, const images::AnimationLook& look,
                            const std::filesystem::path& folder) {
  if (!DoWatched(window_, "Writing the images",
                 [&](app::Progress& progress) { images::WritePngs(frames, look, folder, progress); })) {
    return status_.Tell("Export stopped");
  }
  status_.Tell("Made " + std::to_string(frames.frames.size()) + " images in " + app::TextFromPath(folder));
}

}  // namespace kelvo::ui
