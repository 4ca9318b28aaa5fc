// Where an imported image goes: the whole picture, or some cells of it.
#pragma once

#include <QComboBox>
#include <QSpinBox>
#include <array>

#include "app/settings_store.h"
#include "convert/colour_map.h"

namespace kelvo::ui {

class ImportPlace : public QWidget {
  Q_OBJECT

 public:
  // The part is as it was kept last; the whole picture is chosen.
  ImportPlace(const app::SettingsStore& settings, QWidget* parent);

  bool IsPart() const { return where_->currentIndex() == 1; }
  // What is to be filled, never beyond the picture; the first cell from 0.
  convert::CellGrid Grid() const;
  int Column() const;
  int Row() const;

  void PutBack() { where_->setCurrentIndex(0); }
  void Keep(app::SettingsStore& settings) const;

 signals:
  void Changed();

 private:
  void ShowRoom();

  QComboBox* where_;
  std::array<QSpinBox*, 4> cells_{};  // column, row, width, height
};

}  // namespace kelvo::ui
