// How an image is converted: the choices and sliders of the import dialog, remembered from one import to the next.
#pragma once

#include <QComboBox>
#include <array>
#include <vector>

#include "app/settings_store.h"
#include "convert/conversion.h"
#include "ui/widgets/value_slider.h"

namespace kelvo::ui {

class ImportControls : public QWidget {
  Q_OBJECT

 public:
  // As they were when they were kept last.
  ImportControls(const app::SettingsStore& settings, QWidget* parent);

  // The dither that suits the image, which "as proposed" stands for.
  void Propose(const convert::Dither& dither);
  // The error that each background would mean, and the one that the picture has.
  void ShowBackgrounds(const std::array<double, model::C64Colour::kCount>& errors, model::C64Colour shown);
  // The picture's background, where that is not free; nothing: it is.
  void FixBackground(std::optional<model::C64Colour> fixed);

  // What they say; crop and grid are not theirs.
  convert::Wishes Wishes() const;
  QColor Backdrop() const;

  void PutBack();
  void Keep(app::SettingsStore& settings) const;

 signals:
  void Changed();

 private:
  QComboBox* AddChoice(int row, const char* name, const QString& label, const QStringList& choices);
  void AddColours(QComboBox& box) const;
  void ChooseDither();
  void GrainChanged();
  float Grain() const;

  QGridLayout* grid_;
  QComboBox* fit_;
  QComboBox* dither_;
  QComboBox* background_;
  QComboBox* backdrop_;
  ValueSlider* grain_;
  std::vector<ValueSlider*> light_;  // in the order of their table
  convert::Dither proposed_ = convert::kDithers[2];
  std::optional<model::C64Colour> fixed_;
};

}  // namespace kelvo::ui
