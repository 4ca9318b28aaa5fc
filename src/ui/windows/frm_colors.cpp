#include "ui/windows/frm_colors.h"

#include <QGridLayout>
#include <QStringList>
#include <tuple>

#include "editing/pens.h"

namespace kelvo::ui {
namespace {

constexpr int kColumns = 8;
constexpr auto kHint = "Click: left pen. Right click: right pen. Shift or middle click: background.";

SwatchButton* AddSwatch(QGridLayout* grid, int row, const char* name) {
  auto* swatch = new SwatchButton(grid->parentWidget());
  swatch->setObjectName(name);
  swatch->setFocusPolicy(Qt::NoFocus);
  grid->addWidget(swatch, row, kColumns + 1);
  return swatch;
}

}  // namespace

frmColors::frmColors(QWidget* parent) : QWidget(parent) {
  setObjectName("frmColors");
  setWindowTitle(" Colors");
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(4, 4, 4, 4);
  grid->setSpacing(2);
  grid->setColumnMinimumWidth(kColumns, 2);
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    auto* swatch = new SwatchButton(this);
    const model::C64Colour colour = *model::C64Colour::FromNumber(number);
    swatch->setObjectName(QString("swatch_%1").arg(number));
    swatch->SetKey(QChar(editing::KeyForPen(colour)));
    swatch->setAccessibleDescription(kHint);
    swatch->setStatusTip(kHint);
    grid->addWidget(swatch, number / kColumns, number % kColumns);
    connect(swatch, &SwatchButton::Chosen, this,
            [this, colour](Qt::MouseButton button, Qt::KeyboardModifiers keys) { Choose(colour, button, keys); });
    swatches_[static_cast<std::size_t>(number)] = swatch;
  }
  paint_ = AddSwatch(grid, 0, "PaintColor");
  back_ = AddSwatch(grid, 1, "BGColor");
  ShowMarks();
}

void frmColors::PaintColor(model::C64Colour colour) {
  left_ = colour;
  ShowMarks();
}

void frmColors::BGColor(model::C64Colour colour) {
  background_ = colour;
  ShowMarks();
}

void frmColors::RightColor(model::C64Colour colour) {
  right_ = colour;
  ShowMarks();
}

void frmColors::ShowCell(const model::CellColours& cell) {
  if (cell_ == cell) return;
  cell_ = cell;
  ShowMarks();
}

void frmColors::ShowCellCounts(const std::optional<std::array<int, model::C64Colour::kCount>>& cells) {
  for (std::size_t number = 0; number < swatches_.size(); ++number) {
    swatches_.at(number)->ShowCells(cells ? std::optional(cells->at(number)) : std::nullopt);
  }
}

void frmColors::Choose(model::C64Colour colour, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  if (button == Qt::MiddleButton || modifiers.testFlag(Qt::ShiftModifier)) return emit BackgroundChosen(colour);
  if (button == Qt::RightButton) return emit RightPenChosen(colour);
  emit LeftPenChosen(colour);
}

void frmColors::ShowMarks() {
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    const model::C64Colour colour = *model::C64Colour::FromNumber(number);
    QString marks;
    QStringList roles;
    for (const auto& [use, mark, role] : {std::tuple{left_, "L", "left pen"}, std::tuple{right_, "R", "right pen"},
                                          std::tuple{background_, "B", "background"}}) {
      if (use != colour) continue;
      marks += mark;
      roles << role;
    }
    const bool in_cell =
        cell_ && (cell_->CellColour11 == colour || cell_->CellColour10 == colour || cell_->CellColour01 == colour);
    if (in_cell) roles << "in this cell";
    swatches_[static_cast<std::size_t>(number)]->Show(colour, roles.join(", "), marks, in_cell);
  }
  paint_->Show(left_, "Left pen", "L");
  back_->Show(background_, "Background", "B");
}

}  // namespace kelvo::ui
