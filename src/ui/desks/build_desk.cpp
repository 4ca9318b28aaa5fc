#include "ui/desks/build_desk.h"

#include <QLockFile>
#include <string>
#include <utility>

#include "app/path_text.h"
#include "app/text.h"
#include "app/whole_file.h"
#include "c64out/output_settings.h"
#include "c64out/vice_folder.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/settings_dialog.h"
#include "ui/windows/frm_vice_settings.h"

namespace kelvo::ui {

BuildDesk::BuildDesk(const files::PictureSurroundings& with, app::StatusLine& status, QtToolRunner& runner,
                     QWidget* window)
    : with_(with), status_(status), window_(window), runner_(runner) {
  connect(&runner_, &QtToolRunner::StateChanged, this, &BuildDesk::StateChanged);
}

void BuildDesk::BuildCompoPic(const c64out::CompoPicChoice& choice) {
  Start([this, choice]() -> Build {
    if (!with_.document.file.HasFile() && !with_.files.SaveAs()) return {};
    return [choice, picture = with_.document](const c64out::BuildSurroundings& with) {
      return c64out::BuildCompoPic(picture, choice, with);
    };
  });
}

void BuildDesk::Start(const std::function<Build()>& ask) {
  if (runner_.IsShowing()) {
    next_ = ask;
    return app::IsOn(with_.settings, c64out::kOneEmulator) ? runner_.EndShown() : runner_.Stop();
  }
  if (!IsFree() || is_running_) return;
  const Build build = ask();
  if (!build) return;
  Run(build);
  if (!next_) return;
  QMetaObject::invokeMethod(
      this, [this, next = std::exchange(next_, nullptr)] { Start(next); }, Qt::QueuedConnection);
}

void BuildDesk::Run(const Build& build) {
  is_running_ = true;
  emit StateChanged();
  c64out::BuildResult result = BuildAlone(build);
  if (result.emulator) result.outcome = c64out::ShowInEmulator(*result.emulator, ForBuilds());
  is_running_ = false;
  emit StateChanged();
  TellEnd(result);
}

void BuildDesk::TellEnd(const c64out::BuildResult& result) {
  switch (result.outcome) {
    case c64out::BuildOutcome::kDone:
      if (result.made.empty()) return status_.Tell("Build complete");
      return status_.Tell("Made " + app::TextFromPath(result.made) + ", " + std::to_string(app::FileSize(result.made)) +
                          " bytes");
    case c64out::BuildOutcome::kStopped:
      return status_.Tell("Build stopped");
    case c64out::BuildOutcome::kFailed:
      emit Failed();
      [[fallthrough]];
    case c64out::BuildOutcome::kGivenUp:
      return status_.Warn("Build failed");
  }
}

// Programs on one program folder build in the same work files. The picture may change while tools are at work: a build
// has its own copy.
c64out::BuildResult BuildDesk::BuildAlone(const Build& build) {
  QLockFile lock(QtFromPath(with_.folders.System() / "build.lock"));
  lock.setStaleLockTime(0);
  if (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError) {
    with_.prompt.CommandPromptList("--> Another Kelvo is building in the same program folder.");
    with_.prompt.CommandPromptList("--> [err 908]");
    return {c64out::BuildOutcome::kFailed, {}, {}};
  }
  return build(ForBuilds());
}

c64out::BuildSurroundings BuildDesk::ForBuilds() const {
  return {static_cast<const app::Surroundings&>(with_), runner_};
}

void BuildDesk::Stop() {
  if (IsBuilding()) runner_.Stop();
}

void BuildDesk::LeaveAll() {
  next_ = nullptr;
  runner_.Stop();
}

void BuildDesk::LookForVice() {
  const std::string stored = with_.settings.Read(c64out::kVicePath);
  const std::string_view folder = app::Trimmed(stored);
  is_vice_ready_ = !folder.empty() && c64out::FindEmulator(folder);
  if (!folder.empty() && !is_vice_ready_) with_.messages.Warn("Incorrect VICE path");
  emit StateChanged();
}

void BuildDesk::ShowViceSettings() {
  frmViceSettings dialog(with_.settings, with_.messages, window_);
  connect(&dialog, &frmViceSettings::ViceEntriesEnabled, this, [this](bool enabled) { is_vice_ready_ = enabled; });
  dialog.exec();
  emit StateChanged();
}

void BuildDesk::ShowCodenetSettings() {
  SettingsDialog dialog(with_.settings, "frmCodenetSettings", "Codenet settings", window_);
  dialog.AddText(c64out::kCodenetC64Ip, "&IP to C64 server");
  dialog.AddText(c64out::kCodenetPrgName, "&PRG name");
  dialog.AddHint("A PRG name that is set overrides the picture's file name.");
  dialog.exec();
}

}  // namespace kelvo::ui
