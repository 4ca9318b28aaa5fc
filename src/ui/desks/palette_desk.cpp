#include "ui/desks/palette_desk.h"

#include <QFileDialog>
#include <algorithm>

#include "app/path_text.h"
#include "model/named_palettes.h"
#include "ui/ports/qt_file_dialogs.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

using model::kNamedPalettes;

QStringList Captions() {
  QStringList captions;
  for (const model::NamedPalette& palette : kNamedPalettes) captions << ToQt(palette.name);
  return captions << "VICE palette file...";
}

}  // namespace

PaletteDesk::PaletteDesk(const app::Surroundings& with, QMenu* menu, QWidget* window)
    : with_(with), window_(window), choices_(new ChoiceMenu(menu, Captions())) {
  Show(std::string(files::kPaletteSetting.default_value));
  connect(choices_, &ChoiceMenu::Chosen, this, &PaletteDesk::Choose);
}

void PaletteDesk::Restore() {
  const std::string stored = with_.settings.Read(files::kPaletteSetting);
  if (stored != setting_) Show(stored);
}

void PaletteDesk::Choose(int index) {
  const auto place = static_cast<std::size_t>(index);
  if (place == kNamedPalettes.size()) return ChooseFile();
  const std::string name(kNamedPalettes.at(place).name);
  if (Show(name)) with_.settings.Write(files::kPaletteSetting, name);
}

void PaletteDesk::ChooseFile() {
  const bool is_file = app::PathFromText(setting_).is_absolute();
  const QString file = QFileDialog::getOpenFileName(window_, "Palette", StillThere(is_file ? ToQt(setting_) : ""),
                                                    "VICE palettes (*.vpl);;All files (*)");
  if (!file.isEmpty() && Show(FromQt(file))) with_.settings.Write(files::kPaletteSetting, setting_);
  CheckShown();
}

bool PaletteDesk::Show(const std::string& setting) {
  const bool is_shown = app::Guarded(
      with_.log, "MDIFormMenu_Palette", [&] { shown_ = files::LoadPalette(setting); },
      [&](const std::exception& error) { with_.messages.Warn(error.what()); });
  if (is_shown) {
    setting_ = setting;
    model::ShownPalette::Show(shown_.colours);
    emit Changed();
  }
  CheckShown();
  return is_shown;
}

void PaletteDesk::CheckShown() {
  const auto* named = std::find_if(kNamedPalettes.begin(), kNamedPalettes.end(),
                                   [this](const model::NamedPalette& palette) { return palette.name == setting_; });
  choices_->Check(static_cast<int>(named - kNamedPalettes.begin()));
}

}  // namespace kelvo::ui
