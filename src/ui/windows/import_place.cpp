#include "ui/windows/import_place.h"

#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

constexpr int kCellsWide = model::PictureImage::kCellsWide, kCellsHigh = model::PictureImage::kCellsHigh;

struct Field {
  const char* name;
  const char* label;
  int most;
  app::Setting setting;
};

constexpr std::array<Field, 4> kFields{{{"column", "col&umn", kCellsWide, {"Import", "Column", "1"}},
                                        {"row", "ro&w", kCellsHigh, {"Import", "Row", "1"}},
                                        {"cellsWide", "wi&de", kCellsWide, {"Import", "CellsWide", "12"}},
                                        {"cellsHigh", "&high", kCellsHigh, {"Import", "CellsHigh", "8"}}}};

}  // namespace

ImportPlace::ImportPlace(const app::SettingsStore& settings, QWidget* parent)
    : QWidget(parent), where_(new QComboBox(this)) {
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins({});
  auto* label = new QLabel("&Put it at:", this);
  label->setBuddy(where_);
  where_->setObjectName("cboPlace");
  where_->setAccessibleName("Put it at");
  where_->addItems({"Whole picture, as a new one", "A part of the picture in memory"});
  line->addWidget(label);
  line->addWidget(where_);
  connect(where_, &QComboBox::currentIndexChanged, this, &ImportPlace::ShowRoom);
  for (std::size_t index = 0; index < kFields.size(); ++index) {
    const Field& field = kFields.at(index);
    auto* box = cells_.at(index) = new QSpinBox(this);
    auto* words = new QLabel(field.label, this);
    words->setBuddy(box);
    box->setObjectName(field.name);
    box->setAccessibleName(words->text().remove('&') + ", in cells");
    box->setRange(1, field.most);
    box->setValue(app::ReadNumber(settings, field.setting, 1, field.most));
    line->addWidget(words);
    line->addWidget(box);
    connect(box, &QSpinBox::valueChanged, this, &ImportPlace::ShowRoom);
  }
  line->addStretch();
  ShowRoom();
}

// A part that would reach beyond the picture ends at its edge.
convert::CellGrid ImportPlace::Grid() const {
  if (!IsPart()) return {};
  return {std::min(cells_[2]->value(), kCellsWide - Column()), std::min(cells_[3]->value(), kCellsHigh - Row())};
}

int ImportPlace::Column() const {
  return IsPart() ? cells_[0]->value() - 1 : 0;
}

int ImportPlace::Row() const {
  return IsPart() ? cells_[1]->value() - 1 : 0;
}

void ImportPlace::ShowRoom() {
  for (QSpinBox* box : cells_) box->setEnabled(IsPart());
  emit Changed();
}

void ImportPlace::Keep(app::SettingsStore& settings) const {
  for (std::size_t index = 0; index < kFields.size(); ++index) {
    settings.Write(kFields.at(index).setting, std::to_string(cells_.at(index)->value()));
  }
}

}  // namespace kelvo::ui
