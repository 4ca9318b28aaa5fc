#include "ui/windows/frm_what_if.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QVBoxLayout>

#include "model/palette.h"
#include "optimise/what_if_background.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/icons.h"

namespace kelvo::ui {
namespace {

model::C64Colour ColourNumber(int number) {
  return *model::C64Colour::FromNumber(number);
}

}  // namespace

frmWhatIf::frmWhatIf(const model::PictureImage& picture, QWidget* parent) : QDialog(parent), picture_(picture) {
  setObjectName("frmWhatIf");
  setWindowTitle("What if the background were...");
  auto* column = new QVBoxLayout(this);
  column->addWidget(new QLabel("A click tries a color. Cells that clash show it beside the background already.", this));
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(1);
  grid->addWidget(new QLabel("Cells that gain room", this), 0, 1);
  grid->addWidget(new QLabel("Cells that clash", this), 0, 2);
  column->addLayout(grid);
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    const Row row = MakeRow(number);
    grid->addWidget(row.colour, number + 1, 0);
    grid->addWidget(row.gain, number + 1, 1);
    grid->addWidget(row.clash, number + 1, 2);
    rows_[static_cast<std::size_t>(number)] = row;
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  ShowNumbers();
}

frmWhatIf::Row frmWhatIf::MakeRow(int number) {
  auto* colour = new QPushButton(ColourIcon(ColourNumber(number)), ToQt(model::ColourName(ColourNumber(number))), this);
  colour->setObjectName(QString("cmdTry_%1").arg(number));
  colour->setStyleSheet("text-align: left");
  colour->setCheckable(true);
  colour->setAutoDefault(false);
  connect(colour, &QPushButton::clicked, this, [this, number] {
    emit Tried(number);
    ShowNumbers();
  });
  const auto make_label = [&](const char* what) {
    auto* label = new QLabel(this);
    label->setObjectName(QString("lbl%1_%2").arg(what).arg(number));
    label->setAlignment(Qt::AlignCenter);
    return label;
  };
  return {colour, make_label("Gain"), make_label("Clash")};
}

void frmWhatIf::ShowNumbers() {
  const auto effects = optimise::WhatIfBackground(picture_);
  for (std::size_t number = 0; number < rows_.size(); ++number) {
    const Row& row = rows_.at(number);
    const bool is_now = static_cast<int>(number) == picture_.BackgroundColour.Number();
    row.colour->setChecked(is_now);
    row.gain->setText(is_now ? QString("as it is") : QString::number(effects.at(number).gain_room));
    row.clash->setText(is_now ? QString() : QString::number(effects.at(number).clash));
    row.colour->setAccessibleDescription(
        is_now ? QString("The background now")
               : QString("%1 cells gain room, %2 clash").arg(row.gain->text(), row.clash->text()));
  }
}

}  // namespace kelvo::ui
