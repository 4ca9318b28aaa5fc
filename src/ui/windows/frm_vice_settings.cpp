#include "ui/windows/frm_vice_settings.h"

#include <QFileDialog>
#include <QPushButton>

#include "c64out/output_settings.h"
#include "c64out/vice_folder.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

frmViceSettings::frmViceSettings(app::SettingsStore& settings, app::Messages& messages, QWidget* parent)
    : SettingsDialog(settings, "frmViceSettings", "VICE settings", parent), messages_(messages) {
  path_ = AddText(c64out::kVicePath, "&VICE path", "The folder that holds the emulator and c1541");
  AddText(c64out::kVicePrgName, "&PRG name");
  AddHint("A PRG name that is set overrides the picture's file name.");
  AddCheckBox(c64out::kCheckPrograms, "&Check programs before they are kept");
  AddCheckBox(c64out::kKeyEndsPicture, "A &key ends the picture");
  AddCheckBox(c64out::kFadeIn, "&Fade in");
  AddCheckBox(c64out::kOneEmulator, "A preview &ends the one before");
  if (path_->text().isEmpty()) path_->setText(ToQt(c64out::EmulatorOnPath(FromQt(qEnvironmentVariable("PATH")))));
  auto* browse = new QPushButton("&Browse...");
  browse->setObjectName("browseVicePath");
  AddBeside(*path_, browse);
  connect(browse, &QPushButton::clicked, this, &frmViceSettings::Browse);
}

void frmViceSettings::Browse() {
  const QString folder = QFileDialog::getExistingDirectory(this, "VICE path", StillThere(path_->text()));
  if (!folder.isEmpty()) path_->setText(NativePath(folder));
}

void frmViceSettings::cmdStd_Click() {
  using c64out::ViceFolderState;
  for (const app::Setting& setting :
       {c64out::kVicePrgName, c64out::kCheckPrograms, c64out::kKeyEndsPicture, c64out::kFadeIn, c64out::kOneEmulator}) {
    Store(setting);
  }
  switch (c64out::CheckViceFolder(FromQt(path_->text().trimmed()))) {
    case ViceFolderState::kExecutable:
      return messages_.Warn("The caption spells PATH, not executable.");
    case ViceFolderState::kIncorrect:
      return messages_.Warn("Incorrect VICE path");
    case ViceFolderState::kEmpty:  // the stored path stays, on purpose
      emit ViceEntriesEnabled(false);
      return accept();
    case ViceFolderState::kCorrect:
      Store(c64out::kVicePath);
      emit ViceEntriesEnabled(true);
      return accept();
  }
}

}  // namespace kelvo::ui
